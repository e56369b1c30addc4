#include "plot3dfile/numbers/ValueRuns.h"

#include "plot3dfile/numbers/NumberStream.h"

namespace quorvia::quorutildataio {

namespace {

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
    return file.encoding == Plot3DEncoding_Ascii ? readTextReals(file, count, values)
                                                 : readBinaryRun(file, count, values);
}

std::int64_t readRun(Plot3DFile_s& file, std::int64_t count, std::int32_t* values) {
    return file.encoding == Plot3DEncoding_Ascii ? readTextIntegers(file, count, values)
                                                 : readBinaryRun(file, count, values);
}

} // namespace quorvia::quorutildataio
