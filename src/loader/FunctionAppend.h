// Function files as new variables of all zones that are already in the data set.
#pragma once

#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Adds the variables and tells the host of them, then sets the files up, one for each time step
/// that is there. Every file set holds function files alone. False (told): the numbers of zones
/// differ or a file can't be used. False (not told): an interruption, I-blank in a file, no memory.
/// Variables that were added stay.
[[nodiscard]] bool appendFunctionFiles(std::vector<Plot3DFileHandler>& fileSets,
                                       const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
