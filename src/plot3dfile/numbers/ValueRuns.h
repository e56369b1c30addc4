// Runs of numbers in any encoding, for the paths that take values one by one: filled a run at a
// time, so that a value costs no call of its own.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/numbers/BinaryRuns.h"

namespace quorvia::quorutildataio {

/// Fill `values` with the next `count` (at most longestRun) numbers. Give how many came before the
/// first that can't be read; the stream stands where it stopped.
std::int64_t readRun(Plot3DFile_s& file, std::int64_t count, double* values);
std::int64_t readRun(Plot3DFile_s& file, std::int64_t count, std::int32_t* values);

} // namespace quorvia::quorutildataio
