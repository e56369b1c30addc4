// Whether a data set has the variables that the files of a load fill. Names are made by the style
// of a file and values come by its header; the two counts need not agree.
#pragma once

#include <cstdint>

#include "dataset/variables/LoadShape.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Whether the data set has all variables from `firstVar`, from 1, on that the file fills. False
/// (told): it has not, with the file.
[[nodiscard]] bool checkVariablesFor(const Plot3DFile_s& file, std::int64_t firstVar,
                                     std::int64_t varCount);

/// The same for all files of a time step. False (told): of the first file that goes too far.
[[nodiscard]] bool checkVariablesFor(const Plot3DFileHandler& handler,
                                     const Plot3DLoadShape_s& shape, std::int64_t varCount);

} // namespace quorvia::quorutildataio
