// Which grid, solution and function files make a time step together, and whether they fit. What is
// refused has been told. docs/time-series.md holds the tables.
#pragma once

#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Makes the time steps. False (told): a file stands in the wrong list. False (not told): no
/// memory.
[[nodiscard]] bool pairFilesIntoHandlers(const Plot3DLoadOptions_s& options,
                                         const Plot3DFileList& gridFiles,
                                         const Plot3DFileList& solutionFiles,
                                         const Plot3DFileList& functionFiles,
                                         std::vector<Plot3DFileHandler>& handlers);

/// Dimensions of the files of each time step, of the first alone if `uniformGridStructure`.
/// False (told): they differ.
[[nodiscard]] bool checkHandlerDimensions(const std::vector<Plot3DFileHandler>& handlers,
                                          bool uniformGridStructure);

} // namespace quorvia::quorutildataio
