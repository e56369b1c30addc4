#include "plot3dfile/numbers/FortranRecords.h"

#include <limits>

#include "RecordFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;
using testsupport::Texts;

constexpr bool withReport = true;
constexpr bool quietly = false;

class RecordMarker : public testsupport::RecordFixture {
protected:
    /// Reads one marker; gives its length, or -1 if it is refused.
    std::int64_t read(const FileBytes& bytes, std::uint32_t markerSize = 4, bool swap = false) {
        openFortran(bytes.str());
        file->markerSize = markerSize;
        file->byteSwap = swap;
        return readAgain();
    }
    std::int64_t readAgain() {
        length = 0;
        return readRecordMarker(*file, length) ? length : -1;
    }

    std::int64_t length = 0;
};

TEST_F(RecordMarker, IsALengthInBytes) {
    EXPECT_EQ(read(FileBytes().marker(12)), 12);
    EXPECT_EQ(read(FileBytes().marker(2147483647)), 2147483647);
}

TEST_F(RecordMarker, IsReadInEveryForm) {
    EXPECT_EQ(read(FileBytes(Order_e::Swapped).marker(12), 4, true), 12);
    EXPECT_EQ(read(FileBytes(Order_e::Native, 8).marker(1LL << 40), 8), 1LL << 40);
    EXPECT_EQ(read(FileBytes(Order_e::Swapped, 8).marker(1LL << 40), 8, true), 1LL << 40);
}

TEST_F(RecordMarker, ZeroIsALegalLength) {
    EXPECT_EQ(read(FileBytes().marker(0)), 0);
}

TEST_F(RecordMarker, RefusesShortRead) {
    EXPECT_EQ(read(FileBytes().raw("abc")), -1);
    EXPECT_EQ(read(FileBytes().marker(12), 8), -1);
}

TEST_F(RecordMarker, FullSegmentBeginsAChain) {
    EXPECT_EQ(read(FileBytes().marker(fullSegmentMarker)), 2147483639);
    EXPECT_TRUE(file->inSegmentedRecord);
}

TEST_F(RecordMarker, RefusesAnyOtherNegativeOutsideAChain) {
    for (const std::int64_t marker : {-1LL, -2147483638LL, -2147483640LL, -2147483648LL}) {
        EXPECT_EQ(read(FileBytes().marker(marker)), -1) << marker;
        EXPECT_EQ(length, -marker);
        EXPECT_FALSE(file->inSegmentedRecord);
    }
}

TEST_F(RecordMarker, AnotherNegativeEndsAChain) {
    read(FileBytes().marker(fullSegmentMarker).marker(-12));
    EXPECT_EQ(readAgain(), 12);
    EXPECT_FALSE(file->inSegmentedRecord);
}

TEST_F(RecordMarker, PositiveLeavesAChainAsItIs) {
    read(FileBytes().marker(fullSegmentMarker).marker(12));
    EXPECT_EQ(readAgain(), 12);
    EXPECT_TRUE(file->inSegmentedRecord);
}

TEST_F(RecordMarker, RefusesNegativeOf8BytesInEveryCase) {
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    for (const std::int64_t marker : {-1LL, -12LL, static_cast<long long>(fullSegmentMarker)}) {
        EXPECT_EQ(read(FileBytes(Order_e::Native, 8).marker(marker), 8), -1) << marker;
        EXPECT_EQ(length, -marker);
    }
    EXPECT_EQ(read(FileBytes(Order_e::Native, 8).marker(least), 8), -1);
    EXPECT_EQ(length, std::numeric_limits<std::int64_t>::max());
}

TEST_F(RecordMarker, RefusesNegativeOf8BytesAlsoInsideAChain) {
    for (const std::int64_t marker : {-12LL, static_cast<long long>(fullSegmentMarker)}) {
        openFortran(FileBytes(Order_e::Native, 8).marker(marker).str());
        file->markerSize = 8;
        file->inSegmentedRecord = true;
        EXPECT_EQ(readAgain(), -1) << marker;
        EXPECT_TRUE(file->inSegmentedRecord);
    }
}

class RecordWalk : public testsupport::RecordFixture {
protected:
    bool tiles(const FileBytes& bytes, std::uint32_t markerSize = 4) {
        openFortran(bytes.str());
        file->markerSize = markerSize;
        return checkFortranRecords(*file);
    }
};

TEST_F(RecordWalk, AcceptsRecordsThatTileTheFile) {
    EXPECT_TRUE(tiles(FileBytes().record("ab").record("cdefg").record("hij")));
}

TEST_F(RecordWalk, AcceptsEmptyRecordsBetweenOthers) {
    EXPECT_TRUE(tiles(FileBytes().record("").record("ab").record("").record("").record("cde")));
    EXPECT_TRUE(tiles(FileBytes(Order_e::Native, 8).record("").record("ab").record(""), 8));
}

TEST_F(RecordWalk, AcceptsAnEmptyFile) {
    EXPECT_TRUE(tiles(FileBytes()));
}

TEST_F(RecordWalk, RefusesPairThatDisagrees) {
    EXPECT_FALSE(tiles(FileBytes().record("ab").marker(3).raw("cde").marker(4)));
}

TEST_F(RecordWalk, RefusesRecordThatIsCutShort) {
    const std::string whole = FileBytes().record("ab").record("cde").str();
    for (std::size_t size = 11; size < whole.size(); ++size)
        EXPECT_FALSE(tiles(FileBytes().raw(whole.substr(0, size)))) << size;
}

TEST_F(RecordWalk, RefusesBytesBehindTheLastRecord) {
    for (std::size_t count = 1; count < 8; ++count)
        EXPECT_FALSE(tiles(FileBytes().record("ab").zeros(count))) << count;
}

TEST_F(RecordWalk, RefusesLengthThatPoints64BitsAway) {
    EXPECT_FALSE(tiles(FileBytes(Order_e::Native, 8).marker(0x7fffffffffffffff).zeros(40), 8));
}

TEST_F(RecordWalk, RefusesNegativeLengthOutsideAChain) {
    EXPECT_FALSE(tiles(FileBytes().marker(-2).raw("ab").marker(-2)));
}

TEST_F(RecordWalk, EmptiesBoundariesOfAnEarlierWalk) {
    openFortran(FileBytes().record("ab").str());
    file->segmentBoundaries = {5, 7};
    EXPECT_TRUE(checkFortranRecords(*file));
    EXPECT_TRUE(file->segmentBoundaries.empty());
}

// The boundary is noted before anybody looks whether the payload's end was reached.
TEST_F(RecordWalk, NotesABoundaryEvenIfTheSegmentIsMissing) {
    EXPECT_FALSE(tiles(FileBytes().marker(fullSegmentMarker).zeros(40)));
    EXPECT_EQ(file->segmentBoundaries, std::vector<std::int64_t>({4 + 2147483639LL}));
}

class NextRecord : public testsupport::RecordFixture {
protected:
    bool next(const char* context = "Variable") { return nextRecord(*file, withReport, context); }
};

TEST_F(NextRecord, StandsAtThePayloadAndKnowsItsLength) {
    openFortran(FileBytes().record("ab").record("cdefg").str());
    EXPECT_TRUE(next());
    EXPECT_EQ(file->recordLength, 2);
    EXPECT_TRUE(next());
    EXPECT_EQ(file->recordLength, 5);
    EXPECT_EQ(file->stream->readCharacter(), 'c');
}

TEST_F(NextRecord, PassesOverWhatWasNotRead) {
    openFortran(FileBytes().record("ab").record("cdefg").str());
    next();
    EXPECT_TRUE(file->stream->seek(17));
    EXPECT_TRUE(next());
    EXPECT_EQ(file->stream->tell(), 14);
}

TEST_F(NextRecord, IsNothingToDoForOtherEncodings) {
    openText("2 3 5");
    EXPECT_TRUE(next());
    EXPECT_EQ(file->stream->tell(), 0);
    openBinary("ab");
    EXPECT_TRUE(next());
    EXPECT_EQ(file->stream->tell(), 0);
}

TEST_F(NextRecord, TellsAFileThatEndsBeforeTheMarker) {
    openFortran(FileBytes().record("ab").str());
    next();
    EXPECT_FALSE(next());
    EXPECT_EQ(messages(), Texts({"Invalid record length in record for Variable\nFile: wing.x"}));
    EXPECT_EQ(file->recordLength, 0);
    EXPECT_EQ(file->nextRecordStart, 10);
}

TEST_F(NextRecord, TellsANegativeMarkerOutsideAChainAndStays) {
    openFortran(FileBytes().marker(-2).raw("ab").marker(-2).str());
    EXPECT_FALSE(next(nullptr));
    EXPECT_EQ(messages(), Texts({"Invalid record length in record\nFile: wing.x"}));
    EXPECT_EQ(file->nextRecordStart, 0);
}

TEST_F(NextRecord, SaysNothingWithoutReport) {
    openFortran("ab");
    EXPECT_FALSE(nextRecord(*file, quietly, "Variable"));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(NextRecord, TellsAStartThatCannotBeReached) {
    openFortran(FileBytes().record("ab").str());
    file->nextRecordStart = -1;
    EXPECT_FALSE(next());
    EXPECT_EQ(messages(), Texts({"Cannot seek to start of record for Variable\nFile: wing.x"}));
}

// The first record's length leaves no 64-bit position for the second.
TEST_F(NextRecord, TellsAStartPast64Bits) {
    openFortran(FileBytes(Order_e::Native, 8).marker(0x7fffffffffffffff).zeros(40).str());
    file->markerSize = 8;
    EXPECT_TRUE(next());
    EXPECT_EQ(file->recordLength, 0x7fffffffffffffff);
    EXPECT_FALSE(next());
    EXPECT_EQ(messages(), Texts({"Cannot seek to start of record for Variable\nFile: wing.x"}));
}

TEST_F(NextRecord, TellsASegmentWhoseEndIsPast64Bits) {
    openFortran(FileBytes(Order_e::Native, 8).marker(0x7fffffffffffffff).zeros(40).str());
    file->markerSize = 8;
    file->inSegmentedRecord = true;
    EXPECT_FALSE(next());
    EXPECT_EQ(messages(), Texts({"Cannot seek to end of record for Variable\nFile: wing.x"}));
}

// The chain's first segment is longer than the file: it must end here, and not be looked for for
// ever.
TEST_F(NextRecord, TellsASegmentThatHasNoEnd) {
    openFortran(FileBytes().marker(fullSegmentMarker).zeros(40).str());
    EXPECT_FALSE(next());
    EXPECT_EQ(messages(), Texts({"Invalid intermediate record length in record for Variable\n"
                                 "File: wing.x"}));
}

class RecordEnd : public testsupport::RecordFixture {};

TEST_F(RecordEnd, OfPlainBinaryIsEverywhere) {
    EXPECT_TRUE(atRecordEnd(openBinary("abcd")));
}

TEST_F(RecordEnd, OfFortranIsBeforeTheTrailingMarker) {
    openFortran(FileBytes().record("abcd").str());
    ASSERT_TRUE(nextRecord(*file, quietly, nullptr));
    EXPECT_FALSE(atRecordEnd(*file));
    EXPECT_TRUE(file->stream->seek(8));
    EXPECT_TRUE(atRecordEnd(*file));
    EXPECT_TRUE(file->stream->seek(9));
    EXPECT_FALSE(atRecordEnd(*file));
}

TEST_F(RecordEnd, OfFortranIsAnywhereUnderRelaxedChecks) {
    openFortran(FileBytes().record("abcd").str());
    file->relaxedChecks = true;
    EXPECT_TRUE(atRecordEnd(*file));
}

TEST_F(RecordEnd, OfTextIsTheLineEnd) {
    EXPECT_TRUE(atRecordEnd(openText(" ,\t \n2")));
    EXPECT_TRUE(atRecordEnd(openText(" ,\t \r\n2")));
    EXPECT_TRUE(atRecordEnd(openText(" , ")));
    EXPECT_FALSE(atRecordEnd(openText(" , 2\n")));
    EXPECT_FALSE(atRecordEnd(openText("\v\n")));
}

TEST_F(RecordEnd, OfTextConsumesBlanksAndNoLineEnd) {
    openText(" , \n2");
    EXPECT_TRUE(atRecordEnd(*file));
    EXPECT_EQ(file->lookahead, '\n');
    EXPECT_TRUE(atRecordEnd(*file));
    EXPECT_EQ(file->stream->tell(), 4);
}

class FileEnd : public testsupport::RecordFixture {};

TEST_F(FileEnd, OfFortranIsTheLastMarker) {
    ASSERT_TRUE(openFortran(FileBytes().record("abcd").str()).stream->seek(8));
    EXPECT_TRUE(atFileEnd(*file, withReport));
    EXPECT_EQ(file->stream->tell(), 8);
}

TEST_F(FileEnd, OfTextIsBehindLineEnds) {
    openText("\r\n\n\n").lookahead = '\n';
    EXPECT_TRUE(atFileEnd(*file, withReport));
    openText("").lookahead = -1;
    EXPECT_TRUE(atFileEnd(*file, withReport));
}

TEST_F(FileEnd, IsNotReachedWhileRepeatsRemain) {
    openText("").lookahead = -1;
    file->repeatCount = 1;
    EXPECT_FALSE(atFileEnd(*file, quietly));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileEnd, TellsDataThatRemain) {
    openText("\n2").lookahead = '\n';
    EXPECT_FALSE(atFileEnd(*file, withReport));
    EXPECT_EQ(messages(), Texts({"Unexpected data at end of file\nFile: wing.x"}));
}

} // namespace
} // namespace quorvia::quorutildataio
