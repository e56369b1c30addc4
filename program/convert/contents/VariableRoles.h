// Which variables of a data set are coordinates, I-blank, solution or functions.
#pragma once

#include <vector>

#include <plot3d/DataSet.h>

#include "convert/contents/Contents.h"
#include "convert/contents/SourceFacts.h"

namespace plot3d::program {

/// Of a quantity that was derived, so that it stands behind all function files.
inline constexpr int placeOfDerived = 1 << 30;

/// All variables of the data set with their roles: first those of the grid files, then those of the
/// solution files, then those of the function files.
std::vector<ContentVariable_s> variableRoles(const DataSet& data, const SourceFacts_s& facts);

/// Solution variables make a solution file only together: if one of them is not among `kept`, those
/// that are become functions, ahead of the others.
void keepSolutionWhole(std::vector<ContentVariable_s>& kept,
                       const std::vector<ContentVariable_s>& all);

} // namespace plot3d::program
