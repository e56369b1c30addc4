// Whether a data set has the variables that the files of a load fill. Names are made by the style
// of a file and values come by its header; the two counts need not agree.
#pragma once

#include <cstdint>

#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Where the variables of a load stand.
struct Plot3DVariablePlaces_s {
    std::int32_t numSpatialVars;
    bool hasIBlank;               // of the load, also where the grid was there before it
    std::int32_t numSolutionVars; // of the first time step
    std::int64_t varCount;        // variables that the data set has
};

/// Whether the data set has all variables from `firstVar`, from 1, on that the file fills. False:
/// told, with the file.
bool checkVariablesFor(const Plot3DFile_s& file, std::int64_t firstVar, std::int64_t varCount);

/// The same for all files of a time step. The first file that goes too far is told.
bool checkVariablesFor(const Plot3DFileHandler& handler, const Plot3DVariablePlaces_s& places);

} // namespace quorvia::quorutildataio
