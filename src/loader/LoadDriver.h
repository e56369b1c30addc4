// One load from filled options to its end. Every road into a load ends here.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Examines the files, pairs them into time steps, creates or extends the host's data set and hands
/// the host the instructions that repeat the load. `fromSelection`: the user chose the files,
/// rather than the host handing over instructions. Changes `options` as the load settles them.
/// False (told): the load failed. False (not told): the user interrupted it while headers were
/// examined or function files appended, an appended file has I-blank, or no memory.
[[nodiscard]] bool loadPlot3DData(bool fromSelection, Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
