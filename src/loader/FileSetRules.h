// How many grid, solution and function files may go together, and how they pair up into time steps.
// Each rule tells the user what it refuses. docs/time-series.md holds the tables.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// The counts of names, before any file is opened.
bool checkFileSetCounts(const Plot3DLoadOptions_s& options);

/// The numbers of grids in the first file of each list.
bool checkFileListGridCounts(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                             const Plot3DFileList& functionFiles);

/// The numbers of grids in all files, under a uniform grid structure.
bool checkUniformGridStructure(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                               const Plot3DFileList& functionFiles);

/// Makes the time steps. False: a file stands in the wrong list (told), or no memory (not told).
bool pairFilesIntoHandlers(const Plot3DLoadOptions_s& options, const Plot3DFileList& gridFiles,
                           const Plot3DFileList& solutionFiles, const Plot3DFileList& functionFiles,
                           std::vector<Plot3DFileHandler>& handlers);

/// Dimensions of the files of each time step, of the first alone if `uniformGridStructure`.
bool checkHandlerDimensions(const std::vector<Plot3DFileHandler>& handlers,
                            bool uniformGridStructure);

/// Whether the load takes a grid of each time step; of the first it takes `zonesPerTimeStep`.
bool checkGridSet(const Plot3DLoadOptions_s& options,
                  const std::vector<Plot3DFileHandler>& handlers, std::int32_t zonesPerTimeStep);

} // namespace quorvia::quorutildataio
