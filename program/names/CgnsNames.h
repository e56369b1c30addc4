// What both writers of CGNS files take from the standard (CGNS/SIDS): names where it has one (Annex
// A: Conventions for Data-Name Identifiers), otherwise the data set's; and dimensions.
#pragma once

#include <cstddef>
#include <string>

#include <plot3d/Zone.h>

namespace plot3d::program {

/// Bytes that the name of a node may have.
inline constexpr std::size_t cgnsNameLength = 32;

/// "RHO" is "Density"; a name that the standard has nothing for comes back as it is.
std::string cgnsStandardName(const std::string& variable);

/// Of the cells of a base's zones, 1, 2 or 3: of elements that of their kind, of an ordered zone
/// `gridDimensions`.
int cgnsCellDimension(ZoneKind kind, int gridDimensions);

} // namespace plot3d::program
