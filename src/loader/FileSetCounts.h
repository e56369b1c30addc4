// How many grid, solution and function files may go together, judged by their names alone. Each
// rule tells the user what it refuses. docs/time-series.md holds the tables.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// The counts of names, before any file is opened. False (told): they don't go together.
[[nodiscard]] bool checkFileSetCounts(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
