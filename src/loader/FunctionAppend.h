// Function files as new variables of all zones that are already in the data set.
#pragma once

#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

bool appendFunctionFiles(std::vector<Plot3DFileHandler>& fileSets,
                         const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
