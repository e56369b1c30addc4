// The points of a block that the load's index ranges select. Index order is I fastest, then J, then
// K.
#pragma once

#include <cstdint>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Number of indices that a resolved range selects: each stride, and the end in any case.
std::int64_t countInRange(const Plot3DIndexRange_s& range);

/// Whether a resolved range selects `index`, counted from 1.
bool isInRange(const Plot3DIndexRange_s& range, std::int64_t index);

/// Reads a whole block of `dims` points and keeps those that the three resolved ranges select.
/// `plane` is -1 for a block of all K planes, otherwise the index from 0 of the one plane that the
/// block holds. `isIBlank`: 32-bit integers, otherwise reals. `dest` and `setValue` as for
/// readReals. False (not told): a value can't be read; what came before is stored.
[[nodiscard]] bool readIndexRange(Plot3DFile_s& file, std::int32_t plane, std::int32_t i,
                                  std::int32_t j, std::int32_t k, const Plot3DIndexRange_s& iRange,
                                  const Plot3DIndexRange_s& jRange,
                                  const Plot3DIndexRange_s& kRange, bool isIBlank, void* dest,
                                  QuorFieldSetFunction setValue);

} // namespace quorvia::quorutildataio
