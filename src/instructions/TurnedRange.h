// An index range that ends before it starts selects nothing that could be counted. Whoever takes a
// range from outside, or is about to load one, asks here.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Whether `end` is below `start`. An end of 0 or below counts from the last index and is never
/// found to be.
bool isTurnedRound(const Plot3DIndexRange_s& range);

/// `rangeName`: "I-Range", "J-Range" or "K-Range".
void tellRangeIsTurnedRound(const char* rangeName);

/// False (told): a range of the load is turned round; the message names the first one.
[[nodiscard]] bool checkIndexRanges(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
