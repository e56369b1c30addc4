// Names in a CGNS file: the standard's where it has one (CGNS/SIDS, Annex A: Conventions for
// Data-Name Identifiers), otherwise the data set's.
#pragma once

#include <cstddef>
#include <string>

namespace plot3d::program {

/// Bytes that the name of a node may have.
inline constexpr std::size_t cgnsNameLength = 32;

/// "RHO" is "Density"; a name that the standard has nothing for comes back as it is.
std::string cgnsStandardName(const std::string& variable);

} // namespace plot3d::program
