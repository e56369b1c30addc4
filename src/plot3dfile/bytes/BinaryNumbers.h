// The one place where the bytes of a binary or Fortran file become numbers of the machine. Whatever
// reads one of them, marker, scalar, run or block, comes here; what differs is the way to the
// bytes.
#pragma once

#include <cstdint>

#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/bytes/FileStream.h"

namespace quorvia::quorutildataio {

/// Fills `numbers` with up to `count` numbers of `width` bytes each, in the machine's byte order.
/// `readBytes(destination, byteCount)` gives how many bytes came. `byteSwap`: they are in the
/// opposite order to the machine's. Gives how many whole numbers came.
template <typename ReadBytes>
std::int64_t readBinaryNumbers(ReadBytes readBytes, bool byteSwap, std::int64_t width,
                               std::int64_t count, void* numbers) {
    const std::int64_t got = readBytes(numbers, count * width) / width;
    if (byteSwap)
        reverseEach(numbers, width, got);
    return got;
}

/// The same for numbers that stand back to back at the stream's position, whatever they are.
inline std::int64_t readBinaryNumbers(FileStream& stream, bool byteSwap, std::int64_t width,
                                      std::int64_t count, void* numbers) {
    const auto readBytes = [&](void* destination, std::int64_t byteCount) {
        return stream.read(destination, byteCount);
    };
    return readBinaryNumbers(readBytes, byteSwap, width, count, numbers);
}

/// One such number of the type's width. False (not told): fewer bytes came; `number` is worthless
/// then.
template <typename Number>
[[nodiscard]] bool readBinaryNumber(FileStream& stream, bool byteSwap, Number& number) {
    return readBinaryNumbers(stream, byteSwap, sizeof(Number), 1, &number) == 1;
}

} // namespace quorvia::quorutildataio
