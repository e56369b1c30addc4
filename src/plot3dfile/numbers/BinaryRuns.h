// Runs of numbers of a binary or Fortran file, wherever the markers between segments stand.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The most values of one run.
constexpr std::int64_t longestRun = 1024;

/// Fill `values` with the next `count` (at most longestRun) numbers; reals of the file's precision
/// are delivered as 64 bits. Give how many came before the first that can't be read; what stands
/// behind these is worthless.
std::int64_t readBinaryRun(Plot3DFile_s& file, std::int64_t count, double* values);
std::int64_t readBinaryRun(Plot3DFile_s& file, std::int64_t count, std::int32_t* values);

} // namespace quorvia::quorutildataio
