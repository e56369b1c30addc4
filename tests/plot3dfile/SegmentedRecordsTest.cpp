// Records above 2147483639 bytes. The lengths of full segments are true; the disk holds only the
// few bytes that matter.
#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/numbers/FortranRecords.h"

#include <fstream>

#include "RecordFixture.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "support/TemporaryDirectory.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;

constexpr bool quietly = false;
constexpr std::int64_t full = 2147483639;
constexpr std::int64_t firstEnd = 4 + full;     // of the first segment's payload
constexpr std::int64_t secondStart = 12 + full; // of the second segment's payload

struct Mark_s {
    std::int64_t position;
    std::int64_t value;
};

// Three segments of 2147483639, 2147483639 and 24 bytes, and a record of 4 bytes behind them.
constexpr std::int64_t secondEnd = secondStart + full;
constexpr std::int64_t thirdStart = secondEnd + 8;
constexpr std::int64_t thirdEnd = thirdStart + 24;
constexpr std::int64_t chainSize = thirdEnd + 4 + 12;
const std::vector<Mark_s> chainMarks = {
    {0, -full},          {firstEnd, full}, {firstEnd + 4, -full}, {secondEnd, -full},
    {secondEnd + 4, 24}, {thirdEnd, -24},  {thirdEnd + 4, 4},     {thirdEnd + 12, 4}};

class SegmentedRecord : public testsupport::RecordFixture {
protected:
    void placeMarks(const std::vector<Mark_s>& marks, std::int64_t size, Order_e order) {
        for (const Mark_s& mark : marks)
            disk.place("wing.x", size, mark.position, FileBytes(order).marker(mark.value).str());
    }
    void placeChain(Order_e order = Order_e::Native) { placeMarks(chainMarks, chainSize, order); }

    /// A chain of a full segment and one of 13 bytes.
    void placeShortChain() {
        placeMarks({{0, -full}, {firstEnd, full}, {firstEnd + 4, 13}, {firstEnd + 21, -13}},
                   firstEnd + 25, Order_e::Native);
    }
};

TEST_F(SegmentedRecord, TilesTheFileAndNotesEveryPayloadEnd) {
    placeChain();
    sniffStored();
    EXPECT_EQ(file->encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_EQ(file->segmentBoundaries, std::vector<std::int64_t>({firstEnd, secondEnd, thirdEnd}));
    EXPECT_FALSE(file->inSegmentedRecord);
}

TEST_F(SegmentedRecord, IsFoundInTheOtherByteOrder) {
    placeChain(Order_e::Swapped);
    EXPECT_EQ(sniffStored().encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_TRUE(file->byteSwap);
    EXPECT_EQ(file->segmentBoundaries, std::vector<std::int64_t>({firstEnd, secondEnd, thirdEnd}));
}

TEST_F(SegmentedRecord, IsFoundWithoutReadingItsPayload) {
    placeChain();
    sniffStored();
    EXPECT_LE(disk.bytesRead, 65536);
}

TEST_F(SegmentedRecord, CountsItsPayloadOverAllSegments) {
    placeChain();
    openStored(Plot3DEncoding_FortranUnformatted, chainSize);
    EXPECT_TRUE(nextRecord(*file, quietly, nullptr));
    EXPECT_EQ(file->recordLength, 2 * full + 24);
    EXPECT_EQ(file->stream->tell(), 4);
    EXPECT_TRUE(nextRecord(*file, quietly, nullptr));
    EXPECT_EQ(file->recordLength, 4);
    EXPECT_EQ(file->stream->tell(), thirdEnd + 8);
}

// The pair of the last segment is positive ahead, negative and of the full length behind.
TEST_F(SegmentedRecord, LastSegmentOfFullLengthLeavesTheChainOpen) {
    placeMarks({{0, -full}, {firstEnd, full}, {firstEnd + 4, full}, {secondEnd, -full}},
               secondEnd + 4, Order_e::Native);
    EXPECT_EQ(sniffStored().encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_TRUE(file->inSegmentedRecord);
}

TEST_F(SegmentedRecord, BoundaryIsSteppedOverOnlyWhereItStands) {
    placeChain();
    openStored(Plot3DEncoding_FortranUnformatted, chainSize);
    ASSERT_TRUE(checkFortranRecords(*file));
    for (const std::int64_t position : {firstEnd - 1, firstEnd + 1, std::int64_t{4}}) {
        EXPECT_TRUE(file->stream->seek(position));
        EXPECT_TRUE(skipSegmentBoundary(*file));
        EXPECT_EQ(file->stream->tell(), position);
    }
    EXPECT_TRUE(file->stream->seek(firstEnd));
    EXPECT_TRUE(skipSegmentBoundary(*file));
    EXPECT_EQ(file->stream->tell(), secondStart);
}

TEST_F(SegmentedRecord, BoundaryThatCannotBeSteppedOverFails) {
    openFortran("abcd").segmentBoundaries = {0x7ffffffffffffffd};
    EXPECT_TRUE(file->stream->seek(0x7ffffffffffffffd));
    EXPECT_FALSE(skipSegmentBoundary(*file));
}

TEST_F(SegmentedRecord, NumbersStepOverTheMarkers) {
    openFortran(FileBytes().integers({7, 0, 0, 11, 13}).str()).segmentBoundaries = {4};
    std::int32_t first = 0, second = 0;
    EXPECT_TRUE(readInteger(*file, first) && readInteger(*file, second));
    EXPECT_EQ(first, 7);
    EXPECT_EQ(second, 11);
}

// The chain is closed once nextRecord has walked over it; its boundaries stand.
TEST_F(SegmentedRecord, NumbersStepOverTheMarkersOfARecordThatWasEntered) {
    placeShortChain();
    disk.place("wing.x", firstEnd + 25, firstEnd - 3, "abc");
    disk.place("wing.x", firstEnd + 25, firstEnd + 8, "defgh");
    openStored(Plot3DEncoding_FortranUnformatted, firstEnd + 25);
    EXPECT_TRUE(checkFortranRecords(*file) && (rewindPlot3DFile(*file), true));
    EXPECT_TRUE(nextRecord(*file, quietly, nullptr) && file->stream->seek(firstEnd - 3));
    std::int32_t cut = 0, behind = 0;
    EXPECT_TRUE(readInteger(*file, cut) && readInteger(*file, behind));
    EXPECT_EQ(FileBytes().integers({cut, behind}).str(), "abcdefgh");
}

TEST_F(SegmentedRecord, BlockReadsAcrossOneBoundary) {
    placeShortChain();
    disk.place("wing.x", firstEnd + 25, firstEnd - 3, "abc");
    disk.place("wing.x", firstEnd + 25, firstEnd + 8, "defgh");
    openStored(Plot3DEncoding_FortranUnformatted, firstEnd + 25);
    ASSERT_TRUE(checkFortranRecords(*file));
    EXPECT_TRUE(file->stream->seek(firstEnd - 3));
    std::string bytes(8, '\0');
    EXPECT_TRUE(readBytesAcrossSegments(*file->stream, 4, file->segmentBoundaries, file->encoding,
                                        bytes.data(), 8));
    EXPECT_EQ(bytes, "abcdefgh");
    EXPECT_EQ(file->stream->tell(), firstEnd + 13);
}

// Full segments have an odd length, so that a boundary cuts a value in two.
TEST_F(SegmentedRecord, ValueThatABoundaryCutsIsWholeInEitherByteOrder) {
    const std::string value = FileBytes(Order_e::Swapped).integers({0x01020304}).str();
    placeShortChain();
    disk.place("wing.x", firstEnd + 25, firstEnd - 3, value.substr(0, 3));
    disk.place("wing.x", firstEnd + 25, firstEnd + 8, value.substr(3));
    openStored(Plot3DEncoding_FortranUnformatted, firstEnd + 25).segmentBoundaries = {firstEnd};
    file->byteSwap = true;
    EXPECT_TRUE(file->stream->seek(firstEnd - 3));
    std::int32_t read = 0;
    EXPECT_TRUE(readIntegers(*file, true, 0, 1, &read, nullptr));
    EXPECT_EQ(read, 0x01020304);
}

TEST_F(SegmentedRecord, PassingOverABlockTakesTheMarkersAlong) {
    placeShortChain();
    openStored(Plot3DEncoding_FortranUnformatted, firstEnd + 25).segmentBoundaries = {firstEnd};
    EXPECT_TRUE(file->stream->seek(firstEnd - 3));
    disk.readCount = 0;
    EXPECT_TRUE(readIntegers(*file, false, 0, 2, nullptr, nullptr));
    EXPECT_EQ(file->stream->tell(), firstEnd + 13);
    EXPECT_EQ(disk.readCount, 0);
}

TEST_F(SegmentedRecord, BlockThatEndsAtABoundaryStopsAheadOfTheMarkers) {
    openFortran("abcdMARKMARKef").segmentBoundaries = {4};
    std::string bytes(4, '\0');
    EXPECT_TRUE(readBytesAcrossSegments(*file->stream, 4, {4}, file->encoding, bytes.data(), 4));
    EXPECT_EQ(file->stream->tell(), 4);
}

TEST_F(SegmentedRecord, BlockThatStartsAtABoundaryBeginsWithTheMarkers) {
    ASSERT_TRUE(openFortran("abcdMARKmarkef").stream->seek(4));
    std::string bytes(6, '\0');
    EXPECT_TRUE(readBytesAcrossSegments(*file->stream, 4, {4}, file->encoding, bytes.data(), 6));
    EXPECT_EQ(bytes, "MARKma");
}

// The second boundary is 12 bytes from the block's start: 12 bytes are read from 10 on, with the
// markers among them, though the segment holds 2.
TEST_F(SegmentedRecord, SecondStretchIsMeasuredFromTheBlocksStart) {
    openFortran("ab12345678cd87654321efghijkl");
    std::string bytes(20, '\0');
    EXPECT_TRUE(
        readBytesAcrossSegments(*file->stream, 4, {2, 12}, file->encoding, bytes.data(), 20));
    EXPECT_EQ(bytes, "abcd87654321efefghij");
}

// By that rule two far boundaries ask for more bytes than the block has room for.
TEST_F(SegmentedRecord, StretchThatWouldOverrunTheDestinationFails) {
    openFortran(std::string(200, 'x'));
    std::string bytes(30, 'o');
    EXPECT_FALSE(
        readBytesAcrossSegments(*file->stream, 4, {16, 24}, file->encoding, bytes.data(), 26));
    EXPECT_EQ(bytes.substr(26), "oooo");
}

TEST_F(SegmentedRecord, BoundariesMatterOnlyToFortran) {
    openBinary("abcdMARKMARKef");
    std::string bytes(6, '\0');
    EXPECT_TRUE(readBytesAcrossSegments(*file->stream, 4, {4}, file->encoding, bytes.data(), 6));
    EXPECT_EQ(bytes, "abcdMA");
}

TEST(SegmentBoundaries, AreThoseStrictlyInsideTheStretch) {
    using Positions = std::vector<std::int64_t>;
    const Positions all = {10, 20, 30};
    EXPECT_EQ(segmentBoundariesInRange(all, 10, 20), Positions({20}));
    EXPECT_EQ(segmentBoundariesInRange(all, 9, 22), Positions({10, 20, 30}));
    EXPECT_EQ(segmentBoundariesInRange(all, 0, 0), Positions());
    EXPECT_EQ(segmentBoundariesInRange(all, 10, -5), Positions());
    EXPECT_EQ(segmentBoundariesInRange({}, 0, 100), Positions());
    EXPECT_EQ(countSegmentBoundariesInRange(all, 5, 0x7fffffffffffffff), 3);
}

// The true case, on a true disk: 4 GiB and more of holes.
TEST(SegmentedFile, IsReadBehind4GiB) {
    const testsupport::TemporaryDirectory directory;
    const std::string name = directory.write("big.x", "");
    std::filesystem::resize_file(name, static_cast<std::uintmax_t>(chainSize));
    std::fstream out(name, std::ios::in | std::ios::out | std::ios::binary);
    for (const Mark_s& mark : chainMarks)
        out.seekp(mark.position) << FileBytes().marker(mark.value).str();
    out.seekp(secondEnd - 2) << "ab";
    out.seekp(thirdStart) << "cdef";
    out.close();
    QuorUtilLockOn();
    {
        const Plot3DFilePtr file = createPlot3DFile(name, false);
        EXPECT_EQ(file->encoding, Plot3DEncoding_FortranUnformatted);
        ASSERT_TRUE(openPlot3DFile(*file));
        EXPECT_TRUE(file->stream->seek(secondEnd - 2));
        std::string bytes(6, '\0');
        EXPECT_TRUE(readBytesAcrossSegments(*file->stream, 4, file->segmentBoundaries,
                                            file->encoding, bytes.data(), 6));
        EXPECT_EQ(bytes, "abcdef");
    }
    QuorUtilLockOff();
}

} // namespace
} // namespace quorvia::quorutildataio
