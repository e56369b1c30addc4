// Whether the headers of all files agree on the number of grids. Each rule tells the user what it
// refuses. docs/time-series.md holds the tables.
#pragma once

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The numbers of grids in the first file of each list.
bool checkFileListGridCounts(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                             const Plot3DFileList& functionFiles);

/// The numbers of grids in all files, under a uniform grid structure.
bool checkUniformGridStructure(const Plot3DFileList& gridFiles, const Plot3DFileList& solutionFiles,
                               const Plot3DFileList& functionFiles);

} // namespace quorvia::quorutildataio
