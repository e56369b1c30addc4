// Names in a CGNS file: the standard's where it has one (CGNS/SIDS, Annex A: Conventions for
// Data-Name Identifiers), otherwise the data set's, as far as 32 bytes hold them.
#pragma once

#include <string>
#include <vector>

#include "convert/contents/Contents.h"

namespace plot3d::program {

/// By variable: "RHO" is "Density". Each only once.
std::vector<std::string> cgnsVariableNames(const Contents& contents);

/// By zone. Each only once.
std::vector<std::string> cgnsZoneNames(const Contents& contents);

} // namespace plot3d::program
