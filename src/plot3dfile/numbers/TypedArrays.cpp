#include "plot3dfile/numbers/TypedArrays.h"

#include <algorithm>
#include <array>
#include <limits>

#include "plot3dfile/bytes/ByteOrder.h"
#include "plot3dfile/numbers/ValueDestination.h"
#include "plot3dfile/numbers/ValueRuns.h"

namespace quorvia::quorutildataio {

namespace {

// Of reading and turning round: half of a second-level cache, so that the bytes are still there.
constexpr std::int64_t swapChunkBytes = 256 * 1024;

constexpr std::int64_t integerWidth = 4;

std::int64_t realWidth(bool isDoublePrecision) {
    return isDoublePrecision ? 8 : 4;
}

// Bytes of a block; negative if the count is, or if they pass 64 bits.
std::int64_t blockBytes(std::int64_t width, std::int64_t valueCount) {
    return valueCount <= std::numeric_limits<std::int64_t>::max() / width ? width * valueCount : -1;
}

struct BoundarySpan {
    std::vector<std::int64_t>::const_iterator begin;
    std::vector<std::int64_t>::const_iterator end;
};

BoundarySpan boundariesInside(const std::vector<std::int64_t>& segmentBoundaries,
                              std::int64_t start, std::int64_t byteCount) {
    const auto begin = std::upper_bound(segmentBoundaries.begin(), segmentBoundaries.end(), start);
    const auto end =
        std::partition_point(begin, segmentBoundaries.end(), [&](std::int64_t boundary) {
            return boundary - start < byteCount; // start + byteCount might pass 64 bits
        });
    return {begin, end};
}

bool readInNativeOrder(FileStream& stream, std::int64_t width, std::int64_t valueCount,
                       char* destination) {
    const std::int64_t valuesPerChunk = std::max<std::int64_t>(swapChunkBytes / width, 1);
    for (std::int64_t done = 0; done < valueCount;) {
        const std::int64_t count = std::min(valuesPerChunk, valueCount - done);
        char* chunk = destination + done * width;
        if (!stream.readExactly(chunk, count * width))
            return false;
        reverseEach(chunk, width, count);
        done += count;
    }
    return true;
}

bool passOver(FileStream& stream, std::uint32_t markerSize,
              const std::vector<std::int64_t>& segmentBoundaries, std::int64_t byteCount) {
    const std::int64_t boundaryCount =
        countSegmentBoundariesInRange(segmentBoundaries, stream.tell(), byteCount);
    const std::int64_t markerBytes = boundaryCount * 2 * static_cast<std::int64_t>(markerSize);
    if (byteCount < 0 || byteCount > std::numeric_limits<std::int64_t>::max() - markerBytes)
        return false;
    return stream.skip(byteCount + markerBytes);
}

bool readNumberBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                     const std::vector<std::int64_t>& segmentBoundaries, Plot3DEncoding_e encoding,
                     bool store, std::int64_t width, std::int64_t count, void* destination) {
    if (store)
        return readNumbersAcrossSegments(stream, byteSwap, markerSize, segmentBoundaries, encoding,
                                         width, count, destination);
    return passOver(stream, markerSize, segmentBoundaries, blockBytes(width, count));
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
    const BoundarySpan inside = boundariesInside(segmentBoundaries, start, byteCount);
    return {inside.begin, inside.end};
}

std::int64_t countSegmentBoundariesInRange(const std::vector<std::int64_t>& segmentBoundaries,
                                           std::int64_t start, std::int64_t byteCount) {
    const BoundarySpan inside = boundariesInside(segmentBoundaries, start, byteCount);
    return inside.end - inside.begin;
}

bool readBytesAcrossSegments(FileStream& stream, std::uint32_t markerSize,
                             const std::vector<std::int64_t>& segmentBoundaries,
                             Plot3DEncoding_e encoding, void* destination, std::int64_t byteCount) {
    if (byteCount < 0)
        return false;
    char* target = static_cast<char*>(destination);
    const std::int64_t blockStart = stream.tell();
    std::vector<std::int64_t> boundaries;
    if (encoding == Plot3DEncoding_FortranUnformatted)
        boundaries = segmentBoundariesInRange(segmentBoundaries, blockStart, byteCount);
    std::int64_t remaining = byteCount;
    for (const std::int64_t boundary : boundaries) {
        const std::int64_t length = boundary - blockStart;
        if (length > remaining || !stream.readExactly(target + (byteCount - remaining), length))
            return false;
        if (!stream.seek(boundary) || !stream.skip(2 * static_cast<std::int64_t>(markerSize)))
            return false;
        remaining -= length;
    }
    return stream.readExactly(target + (byteCount - remaining), remaining);
}

bool readNumbersAcrossSegments(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                               const std::vector<std::int64_t>& segmentBoundaries,
                               Plot3DEncoding_e encoding, std::int64_t width,
                               std::int64_t valueCount, void* destination) {
    const std::int64_t byteCount = blockBytes(width, valueCount);
    const bool isInterrupted =
        encoding == Plot3DEncoding_FortranUnformatted &&
        countSegmentBoundariesInRange(segmentBoundaries, stream.tell(), byteCount) > 0;
    if (byteSwap && byteCount >= 0 && !isInterrupted)
        return readInNativeOrder(stream, width, valueCount, static_cast<char*>(destination));
    if (!readBytesAcrossSegments(stream, markerSize, segmentBoundaries, encoding, destination,
                                 byteCount))
        return false;
    if (byteSwap)
        reverseEach(destination, width, valueCount); // a boundary may stand inside a value
    return true;
}

bool readIntegerBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                      const std::vector<std::int64_t>& segmentBoundaries, Plot3DEncoding_e encoding,
                      bool store, std::int64_t count, void* destination) {
    return readNumberBlock(stream, byteSwap, markerSize, segmentBoundaries, encoding, store,
                           integerWidth, count, destination);
}

bool readRealBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                   const std::vector<std::int64_t>& segmentBoundaries, Plot3DEncoding_e encoding,
                   bool isDoublePrecision, bool store, std::int64_t count, void* destination) {
    return readNumberBlock(stream, byteSwap, markerSize, segmentBoundaries, encoding, store,
                           realWidth(isDoublePrecision), count, destination);
}

bool readIntegers(Plot3DFile_s& file, bool store, std::int64_t firstIndex, std::int64_t count,
                  void* dest, QuorFieldSetFunction setValue) {
    if (isBulk(file, setValue))
        return readIntegerBlock(*file.stream, file.byteSwap, file.markerSize,
                                file.segmentBoundaries, file.encoding, store, count,
                                advanced(dest, integerWidth * firstIndex));
    return readValueByValue<std::int32_t>(file, store, firstIndex, count,
                                          ValueDestination(file, dest, setValue));
}

bool readReals(Plot3DFile_s& file, bool store, std::int64_t firstIndex, std::int64_t count,
               void* dest, QuorFieldSetFunction setValue) {
    if (isBulk(file, setValue))
        return readRealBlock(*file.stream, file.byteSwap, file.markerSize, file.segmentBoundaries,
                             file.encoding, file.isDoublePrecision, store, count,
                             advanced(dest, realWidth(file.isDoublePrecision) * firstIndex));
    return readValueByValue<double>(file, store, firstIndex, count,
                                    ValueDestination(file, dest, setValue));
}

} // namespace quorvia::quorutildataio
