// Turns the bytes of numbers around, one number or a whole block. Blocks are done while they are in
// the cache, so that the byte order costs no second pass through memory.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

/// Reverses the bytes of one value in place; `width` in bytes.
void reverseBytes(void* value, std::int64_t width);

/// Reverses each of `valueCount` values of `width` bytes that stand back to back.
void reverseEach(void* values, std::int64_t width, std::int64_t valueCount);

} // namespace quorvia::quorutildataio
