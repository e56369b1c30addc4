// The texts of the dataset stage on the progress bar.
#pragma once

#include <cstdint>
#include <string_view>

#include "plot3dfile/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// One field is about to be set up: one step on currentTask. Zone, variable and grid count from 1.
/// False: stop.
bool stepForField(std::int32_t zone, std::int32_t var, std::int32_t gridNumber,
                  const Plot3DFile_s& file);

/// The connectivity of a grid is about to be read: a text, no step. Numbers from 1.
void showConnectivity(std::int32_t zone, std::int32_t gridNumber, const Plot3DFile_s& file);

/// Shows `text` on currentTask, if there is one; whether to stop does not matter at such places.
void showOnCurrentTask(const char* text);

} // namespace quorvia::quorutildataio
