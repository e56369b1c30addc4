// Fortran files of a form that is not read.
#include <algorithm>
#include <array>

#include "inspect/recognisers/Recognisers.h"
#include "inspect/words/Problems.h"
#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/FortranRecords.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t longWidth = 8;
constexpr std::int64_t mostIntegers = 30'000;
constexpr std::int64_t largestSize = 1'000'000'000;

/// The integers of a record of 8-byte integers that are all sizes of something; empty otherwise.
std::vector<std::int64_t> longSizes(Evidence_s& evidence, io::Plot3DFile_s& record) {
    const std::int64_t count = record.recordLength / longWidth;
    if (record.recordLength % longWidth != 0 || count < 1 || count > mostIntegers)
        return {};
    std::vector<std::int64_t> sizes(static_cast<std::size_t>(count));
    if (evidence.file.readAt(record.stream->tell(), sizes.data(), record.recordLength) !=
        record.recordLength)
        return {};
    if (evidence.form.byteSwap)
        io::reverseEach(sizes.data(), longWidth, count);
    for (const std::int64_t size : sizes)
        if (size < 1 || size > largestSize)
            return {};
    return sizes;
}

FoundProblem recogniseRecordsOfLongIntegers(Evidence_s& evidence) {
    io::Plot3DFile_s record;
    static_cast<io::Plot3DRecordForm_s&>(record) = evidence.form;
    record.stream = evidence.file.stream();
    io::rewindPlot3DFile(record);
    if (!io::nextRecord(record, false, nullptr))
        return std::nullopt;
    const std::int64_t start = record.stream->tell();
    const std::vector<std::int64_t> sizes = longSizes(evidence, record);
    if (sizes.empty())
        return std::nullopt;
    std::string found;
    for (std::size_t index = 0; index < std::min<std::size_t>(sizes.size(), 4); ++index)
        found += (index > 0 ? ", " : "") + grouped(sizes[index]);
    FoundProblem problem =
        problemOf("The file was written with integers of 8 bytes, which are not read.",
                  "integers of 4 bytes", found + " in 8 bytes each",
                  {"od", "-A", "d", "-t", "d8", "--endian=little", "-j", std::to_string(start),
                   "-N", std::to_string(record.recordLength), evidence.file.name()});
    if (byteOrderOf(evidence.form) == plot3d::ByteOrder::Big)
        problem->next[5] = "--endian=big";
    problem->misfit.byte = start;
    return problem;
}

constexpr std::array<Recogniser, 1> fortranTable = {recogniseRecordsOfLongIntegers};

} // namespace

std::span<const Recogniser> fortranRecognisers() {
    return fortranTable;
}

} // namespace plot3dlib
