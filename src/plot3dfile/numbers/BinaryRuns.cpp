#include "plot3dfile/numbers/BinaryRuns.h"

#include <algorithm>
#include <array>

#include "plot3dfile/bytes/BinaryNumbers.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace quorvia::quorutildataio {

namespace {

template <typename Number>
std::int64_t readAsStored(Plot3DFile_s& file, std::int64_t count, Number* numbers) {
    const auto readBytes = [&](void* destination, std::int64_t byteCount) {
        return readAcrossSegments(file, destination, byteCount);
    };
    return readBinaryNumbers(readBytes, file.byteSwap, sizeof(Number), count, numbers);
}

} // namespace

std::int64_t readBinaryRun(Plot3DFile_s& file, std::int64_t count, double* values) {
    if (file.isDoublePrecision)
        return readAsStored(file, count, values);
    std::array<float, longestRun> narrow;
    const std::int64_t got = readAsStored(file, count, narrow.data());
    std::copy_n(narrow.begin(), got, values);
    return got;
}

std::int64_t readBinaryRun(Plot3DFile_s& file, std::int64_t count, std::int32_t* values) {
    return readAsStored(file, count, values);
}

} // namespace quorvia::quorutildataio
