#include "plot3dfile/numbers/TypedArrays.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

#include "plot3dfile/bytes/BinaryNumbers.h"
#include "plot3dfile/numbers/ValueDestination.h"
#include "plot3dfile/numbers/ValueRuns.h"

namespace quorvia::quorutildataio {

namespace {

// Of reading and turning round: half of a second-level cache, so that the bytes are still there.
constexpr std::int64_t swapChunkBytes = 256 * 1024;

// Bytes of a block; negative if the count is, or if they pass 64 bits.
std::int64_t blockBytes(std::int64_t width, std::int64_t valueCount) {
    return valueCount <= std::numeric_limits<std::int64_t>::max() / width ? width * valueCount : -1;
}

using Boundaries = std::span<const std::int64_t>;

Boundaries boundariesInside(const std::vector<std::int64_t>& segmentBoundaries, std::int64_t start,
                            std::int64_t byteCount) {
    const auto begin = std::upper_bound(segmentBoundaries.begin(), segmentBoundaries.end(), start);
    const auto end =
        std::partition_point(begin, segmentBoundaries.end(), [&](std::int64_t boundary) {
            return boundary - start < byteCount; // start + byteCount might pass 64 bits
        });
    return {begin, end};
}

/// Those inside a block that begins at the stream's position.
Boundaries boundariesOfBlock(const FileStream& stream, const Plot3DRecordForm_s& form,
                             std::int64_t byteCount) {
    if (form.encoding != Plot3DEncoding_FortranUnformatted)
        return {};
    return boundariesInside(form.segmentBoundaries, stream.tell(), byteCount);
}

std::int64_t bytesBetweenSegments(const Plot3DRecordForm_s& form) {
    return 2 * static_cast<std::int64_t>(form.markerSize);
}

/// Of numbers in the opposite byte order, without a boundary among them.
bool readSwapped(FileStream& stream, std::int64_t width, std::int64_t valueCount,
                 char* destination) {
    constexpr bool byteSwap = true;
    const std::int64_t valuesPerChunk = std::max<std::int64_t>(swapChunkBytes / width, 1);
    for (std::int64_t done = 0; done < valueCount;) {
        const std::int64_t count = std::min(valuesPerChunk, valueCount - done);
        char* chunk = destination + done * width;
        if (readBinaryNumbers(stream, byteSwap, width, count, chunk) != count)
            return false;
        done += count;
    }
    return true;
}

/// In either byte order, with any number of boundaries among the numbers or inside one.
bool readByTheRuleOfBlocks(FileStream& stream, const Plot3DRecordForm_s& form, std::int64_t width,
                           std::int64_t valueCount, void* destination) {
    const auto readBytes = [&](void* bytes, std::int64_t byteCount) {
        return readBytesAcrossSegments(stream, form, bytes, byteCount) ? byteCount : 0;
    };
    return readBinaryNumbers(readBytes, form.byteSwap, width, valueCount, destination) ==
           valueCount;
}

// A block of such numbers with one boundary inside, which the stream has not come to: the values
// ahead of it, the one that it cuts if it does, and those behind it.
bool readAroundBoundary(FileStream& stream, const Plot3DRecordForm_s& form, std::int64_t boundary,
                        std::int64_t width, std::int64_t valueCount, char* destination) {
    const std::int64_t bytesAhead = boundary - stream.tell();
    std::int64_t done = bytesAhead / width;
    if (!readSwapped(stream, width, done, destination))
        return false;
    if (bytesAhead % width == 0) {
        if (!stream.skip(bytesBetweenSegments(form)))
            return false;
    } else {
        char* cutValue = destination + done++ * width;
        if (!readByTheRuleOfBlocks(stream, form, width, 1, cutValue))
            return false;
    }
    return readSwapped(stream, width, valueCount - done, destination + done * width);
}

bool passOver(FileStream& stream, const Plot3DRecordForm_s& form, std::int64_t byteCount) {
    const std::int64_t boundaryCount =
        countSegmentBoundariesInRange(form.segmentBoundaries, stream.tell(), byteCount);
    const std::int64_t markerBytes = boundaryCount * bytesBetweenSegments(form);
    if (byteCount < 0 || byteCount > std::numeric_limits<std::int64_t>::max() - markerBytes)
        return false;
    return stream.skip(byteCount + markerBytes);
}

bool readNumberBlock(FileStream& stream, const Plot3DRecordForm_s& form, bool store,
                     std::int64_t width, std::int64_t count, void* destination) {
    return store ? readNumbersAcrossSegments(stream, form, width, count, destination)
                 : passOver(stream, form, blockBytes(width, count));
}

template <typename Number>
bool readValueByValue(Plot3DFile_s& file, bool store, std::int64_t firstIndex, std::int64_t count,
                      const ValueDestination& destination) {
    std::array<Number, longestRun> run;
    for (std::int64_t done = 0; done < count;) {
        const std::int64_t wanted = std::min(longestRun, count - done);
        const std::int64_t got = readRun(file, wanted, run.data());
        for (std::int64_t index = 0; store && index < got; ++index)
            destination.store(firstIndex + done + index, run[static_cast<std::size_t>(index)]);
        if (got < wanted)
            return false;
        done += got;
    }
    return true;
}

bool isBulk(const Plot3DFile_s& file, QuorFieldSetFunction setValue) {
    return file.encoding != Plot3DEncoding_Ascii && setValue == nullptr;
}

void* advanced(void* dest, std::int64_t byteCount) {
    return dest != nullptr ? static_cast<char*>(dest) + byteCount : nullptr;
}

} // namespace

std::vector<std::int64_t>
segmentBoundariesInRange(const std::vector<std::int64_t>& segmentBoundaries, std::int64_t start,
                         std::int64_t byteCount) {
    const Boundaries inside = boundariesInside(segmentBoundaries, start, byteCount);
    return {inside.begin(), inside.end()};
}

std::int64_t countSegmentBoundariesInRange(const std::vector<std::int64_t>& segmentBoundaries,
                                           std::int64_t start, std::int64_t byteCount) {
    return std::ssize(boundariesInside(segmentBoundaries, start, byteCount));
}

bool readBytesAcrossSegments(FileStream& stream, const Plot3DRecordForm_s& form, void* destination,
                             std::int64_t byteCount) {
    if (byteCount < 0)
        return false;
    char* target = static_cast<char*>(destination);
    const std::int64_t blockStart = stream.tell();
    std::int64_t remaining = byteCount;
    for (const std::int64_t boundary : boundariesOfBlock(stream, form, byteCount)) {
        const std::int64_t length = boundary - blockStart;
        if (length > remaining || !stream.readExactly(target + (byteCount - remaining), length))
            return false;
        if (!stream.seek(boundary) || !stream.skip(bytesBetweenSegments(form)))
            return false;
        remaining -= length;
    }
    return stream.readExactly(target + (byteCount - remaining), remaining);
}

bool readNumbersAcrossSegments(FileStream& stream, const Plot3DRecordForm_s& form,
                               std::int64_t width, std::int64_t valueCount, void* destination) {
    const std::int64_t byteCount = blockBytes(width, valueCount);
    if (byteCount < 0)
        return false;
    if (form.byteSwap) {
        char* target = static_cast<char*>(destination);
        const Boundaries inside = boundariesOfBlock(stream, form, byteCount);
        if (inside.empty())
            return readSwapped(stream, width, valueCount, target);
        if (inside.size() == 1)
            return readAroundBoundary(stream, form, inside.front(), width, valueCount, target);
    }
    return readByTheRuleOfBlocks(stream, form, width, valueCount, destination);
}

bool readIntegerBlock(FileStream& stream, const Plot3DRecordForm_s& form, bool store,
                      std::int64_t count, void* destination) {
    return readNumberBlock(stream, form, store, integerWidth, count, destination);
}

bool readRealBlock(FileStream& stream, const Plot3DRecordForm_s& form, bool store,
                   std::int64_t count, void* destination) {
    return readNumberBlock(stream, form, store, realWidth(form), count, destination);
}

bool readBytesAcrossSegments(FileStream& stream, std::uint32_t markerSize,
                             const std::vector<std::int64_t>& segmentBoundaries,
                             Plot3DEncoding_e encoding, void* destination, std::int64_t byteCount) {
    constexpr bool byteSwap = false;          // bytes have no order,
    constexpr bool isDoublePrecision = false; // and no precision
    return readBytesAcrossSegments(
        stream, {encoding, byteSwap, isDoublePrecision, markerSize, segmentBoundaries}, destination,
        byteCount);
}

bool readIntegerBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                      const std::vector<std::int64_t>& segmentBoundaries, Plot3DEncoding_e encoding,
                      bool store, std::int64_t count, void* destination) {
    constexpr bool isDoublePrecision = false; // integers have none
    return readIntegerBlock(stream,
                            {encoding, byteSwap, isDoublePrecision, markerSize, segmentBoundaries},
                            store, count, destination);
}

bool readRealBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                   const std::vector<std::int64_t>& segmentBoundaries, Plot3DEncoding_e encoding,
                   bool isDoublePrecision, bool store, std::int64_t count, void* destination) {
    return readRealBlock(stream,
                         {encoding, byteSwap, isDoublePrecision, markerSize, segmentBoundaries},
                         store, count, destination);
}

bool readIntegers(Plot3DFile_s& file, bool store, std::int64_t firstIndex, std::int64_t count,
                  void* dest, QuorFieldSetFunction setValue) {
    if (isBulk(file, setValue))
        return readIntegerBlock(*file.stream, file, store, count,
                                advanced(dest, integerWidth * firstIndex));
    return readValueByValue<std::int32_t>(file, store, firstIndex, count,
                                          ValueDestination(file, dest, setValue));
}

bool readReals(Plot3DFile_s& file, bool store, std::int64_t firstIndex, std::int64_t count,
               void* dest, QuorFieldSetFunction setValue) {
    if (isBulk(file, setValue))
        return readRealBlock(*file.stream, file, store, count,
                             advanced(dest, realWidth(file) * firstIndex));
    return readValueByValue<double>(file, store, firstIndex, count,
                                    ValueDestination(file, dest, setValue));
}

} // namespace quorvia::quorutildataio
