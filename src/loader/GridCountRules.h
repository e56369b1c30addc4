// Whether the headers of all files agree on the number of grids, and hold grids that are wanted.
// Each rule tells the user what it refuses. docs/time-series.md holds the tables.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// The numbers of grids in the first file of each list. False (told): they differ.
[[nodiscard]] bool checkFileListGridCounts(const Plot3DFileList& gridFiles,
                                           const Plot3DFileList& solutionFiles,
                                           const Plot3DFileList& functionFiles);

/// The numbers of grids in all files, under a uniform grid structure. False (told): a file has more
/// than the first.
[[nodiscard]] bool checkUniformGridStructure(const Plot3DFileList& gridFiles,
                                             const Plot3DFileList& solutionFiles,
                                             const Plot3DFileList& functionFiles);

/// Whether the load takes a grid of each time step; of the first it takes `zonesPerTimeStep`.
/// False (told): it takes none of a file.
[[nodiscard]] bool checkGridSet(const Plot3DLoadOptions_s& options,
                                const std::vector<Plot3DFileHandler>& handlers,
                                std::int32_t zonesPerTimeStep);

} // namespace quorvia::quorutildataio
