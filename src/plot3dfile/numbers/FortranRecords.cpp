#include "plot3dfile/numbers/FortranRecords.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <string>

#include "plot3dfile/bytes/BinaryNumbers.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int64_t largestPosition = std::numeric_limits<std::int64_t>::max();
// A segment holds 2 GB, so that no file has so many. But zeros behind a chain that was never closed
// would each be a segment of it, with a boundary to remember for every 8 bytes of the file.
constexpr std::int64_t mostSegmentBoundaries = 1'000'000;
// A file of nothing but short records takes long to walk.
constexpr std::int64_t bytesBetweenQuestions = std::int64_t{64} << 20;
// What a sum past 64 bits becomes: every seek to it fails.
constexpr std::int64_t noPosition = -1;

std::int64_t widthOf(const Plot3DFile_s& file) {
    return static_cast<std::int64_t>(file.markerSize);
}

template <typename Marker>
bool readMarkerOf(Plot3DFile_s& file, std::int64_t& marker) {
    Marker stored = 0;
    if (!readBinaryNumber(*file.stream, file.byteSwap, stored))
        return false;
    marker = stored;
    return true;
}

bool readSignedMarker(Plot3DFile_s& file, std::int64_t& marker) {
    return file.markerSize == 8 ? readMarkerOf<std::int64_t>(file, marker)
                                : readMarkerOf<std::int32_t>(file, marker);
}

std::int64_t negatedWithin64Bits(std::int64_t number) {
    return number == std::numeric_limits<std::int64_t>::min() ? largestPosition : -number;
}

bool isAllZeros(FileStream::Window_s window) {
    const std::int64_t byteCount = window.end - window.begin;
    // Each byte is the one ahead of it: a library's comparison is far quicker than a loop of ours.
    return byteCount > 0 && *window.begin == 0 &&
           std::memcmp(window.begin, window.begin + 1, static_cast<std::size_t>(byteCount - 1)) ==
               0;
}

// Bytes of the window that belong to empty records in a row, which are nothing but zeros.
std::int64_t countEmptyRecordBytes(FileStream::Window_s window, std::int64_t recordBytes) {
    const char* end = window.end;
    if (!isAllZeros(window))
        end = std::find_if(window.begin, window.end, [](char byte) { return byte != 0; });
    return (end - window.begin) / recordBytes * recordBytes;
}

// Passes over the empty records that the buffer holds: a big file of zeros would otherwise be
// walked in steps of two markers. False if there are none.
bool passOverEmptyRecords(Plot3DFile_s& file) {
    if (file.inSegmentedRecord)
        return false; // each of them ends at a boundary that must be noted
    const std::int64_t passed = countEmptyRecordBytes(file.stream->window(), 2 * widthOf(file));
    file.stream->consume(passed);
    return passed > 0;
}

// Walks over one record or segment, which starts at the stream's position.
bool passOverSegment(Plot3DFile_s& file) {
    std::int64_t length = 0;
    const bool isMoved = readRecordMarker(file, length) && file.stream->skip(length);
    if (std::ssize(file.segmentBoundaries) == mostSegmentBoundaries)
        return false;
    if (file.inSegmentedRecord)
        file.segmentBoundaries.push_back(file.stream->tell());
    if (!isMoved)
        return false;
    // A length of rubbish mostly points behind the file's end: no need to go and look.
    if (file.fileSize - file.stream->tell() < widthOf(file))
        return false;
    std::int64_t trailingLength = 0;
    return readRecordMarker(file, trailingLength) && trailingLength == length;
}

// Takes a segment's payload into the record's length and its end. A record that would end past 64
// bits keeps a next record that can't be reached.
void addSegment(Plot3DFile_s& file, std::int64_t length) {
    const std::int64_t markers = 2 * widthOf(file);
    const bool isReachable =
        file.nextRecordStart >= 0 && length <= largestPosition - markers - file.nextRecordStart;
    file.nextRecordStart = isReachable ? file.nextRecordStart + markers + length : noPosition;
    file.recordLength = length <= largestPosition - file.recordLength ? file.recordLength + length
                                                                      : largestPosition;
}

// Reads the markers of a record, which starts at the stream's position, over all its segments.
// Gives the text of the first fault, or null.
const char* readRecordMarkers(Plot3DFile_s& file, bool& hasSegments) {
    do {
        std::int64_t length = 0;
        if (!readRecordMarker(file, length))
            return "Invalid record length in record";
        addSegment(file, length);
        if (!file.inSegmentedRecord)
            return nullptr;
        hasSegments = true;
        if (!file.stream->seek(file.nextRecordStart - widthOf(file)))
            return "Cannot seek to end of record";
        if (!readRecordMarker(file, length))
            return "Invalid intermediate record length in record";
    } while (file.inSegmentedRecord);
    return nullptr;
}

const char* enterNextRecord(Plot3DFile_s& file) {
    constexpr const char* cannotSeek = "Cannot seek to start of record";
    const std::int64_t recordStart = file.nextRecordStart;
    if (!file.stream->seek(recordStart))
        return cannotSeek;
    file.recordLength = 0;
    bool hasSegments = false;
    const char* fault = readRecordMarkers(file, hasSegments);
    if (!hasSegments)
        return fault;
    const bool isAtPayload = file.stream->seek(recordStart + widthOf(file));
    return fault == nullptr && !isAtPayload ? cannotSeek : fault;
}

// How far the next boundary behind the position is away; very far if there is none.
std::int64_t bytesAheadOfBoundary(const Plot3DFile_s& file) {
    const std::vector<std::int64_t>& boundaries = file.segmentBoundaries;
    const std::int64_t position = file.stream->tell();
    const auto next = std::upper_bound(boundaries.begin(), boundaries.end(), position);
    return (next != boundaries.end() ? *next : largestPosition) - position;
}

bool isInterrupted(const Plot3DFile_s& file) {
    return file.observer != nullptr ? !file.observer->goesOn() : QuorUtilInterruptIsSet();
}

bool isLineEnd(int character) {
    return character == '\r' || character == '\n';
}

bool isLineUsedUp(Plot3DFile_s& file) {
    while (file.lookahead == ' ' || file.lookahead == ',' || file.lookahead == '\t')
        file.lookahead = file.stream->readCharacter();
    if (file.repeatCount != 0)
        return false;
    return file.lookahead == -1 || isLineEnd(file.lookahead);
}

bool onlyLineEndsRemain(Plot3DFile_s& file) {
    while (isLineEnd(file.lookahead))
        file.lookahead = file.stream->readCharacter();
    return file.repeatCount == 0 && file.lookahead == -1;
}

} // namespace

bool readRecordMarker(Plot3DFile_s& file, std::int64_t& length) {
    length = 0;
    std::int64_t marker = 0;
    if (!readSignedMarker(file, marker))
        return false;
    if (marker >= 0) {
        length = marker;
        return true;
    }
    length = negatedWithin64Bits(marker);
    if (file.markerSize == 8)
        return false;
    if (marker == fullSegmentMarker) {
        file.inSegmentedRecord = true;
        return true;
    }
    const bool endsChain = file.inSegmentedRecord;
    file.inSegmentedRecord = false;
    return endsChain;
}

RecordWalk_e walkFortranRecords(Plot3DFile_s& file) {
    rewindPlot3DFile(file);
    file.segmentBoundaries.clear();
    std::int64_t asked = 0; // the position at which the host was asked last
    while (file.fileSize - file.stream->tell() >= 1) {
        if (file.stream->tell() - asked >= bytesBetweenQuestions) {
            if (isInterrupted(file))
                return RecordWalk_e::Interrupted;
            asked = file.stream->tell();
        }
        if (!passOverEmptyRecords(file) && !passOverSegment(file))
            return RecordWalk_e::DoesNotTile;
    }
    return RecordWalk_e::Tiles;
}

bool checkFortranRecords(Plot3DFile_s& file) {
    return walkFortranRecords(file) == RecordWalk_e::Tiles;
}

bool nextRecord(Plot3DFile_s& file, bool report, const char* context) {
    if (file.encoding != Plot3DEncoding_FortranUnformatted)
        return true;
    const char* fault = enterNextRecord(file);
    if (fault == nullptr)
        return true;
    if (report && !file.stream->wasStopped())
        reportFileError(file, context != nullptr ? std::string(fault) + " for " + context : fault);
    return false;
}

bool atRecordEnd(Plot3DFile_s& file) {
    switch (file.encoding) {
    case Plot3DEncoding_FortranUnformatted:
        return file.relaxedChecks || file.stream->tell() == file.nextRecordStart - widthOf(file);
    case Plot3DEncoding_Ascii:
        return isLineUsedUp(file);
    case Plot3DEncoding_Binary:
    case Plot3DEncoding_Unknown:
        break;
    }
    return true;
}

bool atFileEnd(Plot3DFile_s& file, bool report) {
    const bool isAtEnd = file.encoding == Plot3DEncoding_FortranUnformatted
                             ? file.stream->tell() == file.stream->size() - widthOf(file)
                             : onlyLineEndsRemain(file);
    if (!isAtEnd && report)
        reportFileError(file, "Unexpected data at end of file");
    return isAtEnd;
}

bool skipSegmentBoundary(Plot3DFile_s& file) {
    const std::vector<std::int64_t>& boundaries = file.segmentBoundaries;
    const std::int64_t position = file.stream->tell();
    if (!std::binary_search(boundaries.begin(), boundaries.end(), position))
        return true;
    const bool isRecordEnd = position == file.nextRecordStart - widthOf(file);
    return !isRecordEnd && file.stream->skip(2 * widthOf(file));
}

std::int64_t readAcrossSegments(Plot3DFile_s& file, void* destination, std::int64_t byteCount) {
    char* target = static_cast<char*>(destination);
    const bool hasSegments =
        file.encoding == Plot3DEncoding_FortranUnformatted && !file.segmentBoundaries.empty();
    if (!hasSegments)
        return file.stream->read(target, byteCount);
    std::int64_t done = 0;
    while (done < byteCount && skipSegmentBoundary(file)) {
        const std::int64_t piece = std::min(byteCount - done, bytesAheadOfBoundary(file));
        const std::int64_t got = file.stream->read(target + done, piece);
        done += got;
        if (got < piece)
            break;
    }
    return done;
}

} // namespace quorvia::quorutildataio
