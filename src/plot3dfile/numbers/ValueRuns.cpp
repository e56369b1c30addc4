#include "plot3dfile/numbers/ValueRuns.h"

#include <algorithm>
#include <array>

#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"

namespace quorvia::quorutildataio {

namespace {

// `Stored` is the number in the file, `Value` the number delivered.
template <typename Stored, typename Value>
std::int64_t readBinaryRun(Plot3DFile_s& file, std::int64_t count, Value* values) {
    constexpr std::int64_t width = sizeof(Stored);
    std::array<Stored, longestRun> stored;
    const std::int64_t got = readAcrossSegments(file, stored.data(), count * width) / width;
    if (file.byteSwap)
        reverseEach(stored.data(), width, got);
    std::copy_n(stored.begin(), got, values);
    return got;
}

std::int64_t readTextIntegers(Plot3DFile_s& file, std::int64_t count, std::int32_t* values) {
    for (std::int64_t done = 0; done < count; ++done)
        if (!readInteger(file, values[done]))
            return done;
    return count;
}

std::int64_t readTextReals(Plot3DFile_s& file, std::int64_t count, double* values) {
    std::int64_t done = 0;
    while (done < count) {
        done += readPlainReals(file, count - done, values + done);
        if (done == count || !readReal(file, values[done]))
            break;
        ++done;
    }
    return done;
}

} // namespace

std::int64_t readRun(Plot3DFile_s& file, std::int64_t count, double* values) {
    if (file.encoding == Plot3DEncoding_Ascii)
        return readTextReals(file, count, values);
    return file.isDoublePrecision ? readBinaryRun<double>(file, count, values)
                                  : readBinaryRun<float>(file, count, values);
}

std::int64_t readRun(Plot3DFile_s& file, std::int64_t count, std::int32_t* values) {
    if (file.encoding == Plot3DEncoding_Ascii)
        return readTextIntegers(file, count, values);
    return readBinaryRun<std::int32_t>(file, count, values);
}

} // namespace quorvia::quorutildataio
