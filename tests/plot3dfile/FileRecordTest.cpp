#include "plot3dfile/detection/FileCreation.h"
#include "plot3dfile/file/Plot3DFile.h"

#include "RecordFixture.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::FileBytes;
using testsupport::Order_e;
using testsupport::Texts;

class FileRecord : public testsupport::RecordFixture {};

TEST_F(FileRecord, StartsUnknownAndUnread) {
    const Plot3DFilePtr record = createPlot3DFile("later.x", true);
    EXPECT_EQ(record->fileName.str(), "later.x");
    EXPECT_EQ(record->encoding, Plot3DEncoding_Unknown);
    EXPECT_EQ(record->dataStructure, Plot3DDataStructure_Unknown);
    EXPECT_EQ(record->style, Plot3DStyle_Unknown);
    EXPECT_EQ(record->markerSize, 4U);
    EXPECT_EQ(record->recordLength, -1);
    EXPECT_EQ(record->lookahead, 32);
    EXPECT_EQ(record->fileSize, 0);
}

TEST_F(FileRecord, DeferredCreationTouchesNoFile) {
    EXPECT_NE(createPlot3DFile("missing.x", true), nullptr);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileRecord, CreationMeasuresSniffsAndCloses) {
    sniff(FileBytes().integers({2, 3, 5}).str());
    EXPECT_EQ(file->fileSize, 12);
    EXPECT_EQ(file->encoding, Plot3DEncoding_Binary);
    EXPECT_EQ(file->stream, nullptr);
    EXPECT_EQ(file->recordLength, 0);
}

TEST_F(FileRecord, MissingFileIsToldAndTheRecordStaysAtItsStart) {
    const Plot3DFilePtr record = createPlot3DFile("missing.x", false);
    EXPECT_EQ(messages(), Texts({"The file missing.x could not be opened."}));
    EXPECT_EQ(record->encoding, Plot3DEncoding_Unknown);
    EXPECT_EQ(record->recordLength, -1);
    EXPECT_EQ(record->stream, nullptr);
}

TEST_F(FileRecord, MissingFileIsToldEachTimeItIsTried) {
    const Plot3DFilePtr record = createPlot3DFile("missing.x", true);
    EXPECT_FALSE(openPlot3DFile(*record));
    EXPECT_FALSE(openPlot3DFile(*record));
    EXPECT_EQ(messages().size(), 2U);
}

TEST_F(FileRecord, NameThatCannotBeCopiedMakesNoRecord) {
    host().failCall("QuorUtilStringAlloc", 1);
    EXPECT_EQ(createPlot3DFile("wing.x", false), nullptr);
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileRecord, DestroyingClearsThePointer) {
    Plot3DFilePtr record = createPlot3DFile("wing.x", true);
    destroyPlot3DFile(record);
    EXPECT_EQ(record, nullptr);
}

TEST_F(FileRecord, ClosingResetsTheReadingStateAndNothingElse) {
    openText("3*7 9");
    file->lookahead = '9';
    file->repeatCount = 2;
    file->repeatValue = 7.0;
    file->recordLength = 11;
    file->nextRecordStart = 13;
    EXPECT_TRUE(closePlot3DFile(*file));
    EXPECT_EQ(file->stream, nullptr);
    EXPECT_EQ(file->lookahead, 32);
    EXPECT_EQ(file->repeatCount, 0);
    EXPECT_EQ(file->repeatValue, 0.0);
    EXPECT_EQ(file->recordLength, 0);
    EXPECT_EQ(file->nextRecordStart, 0);
    EXPECT_EQ(file->fileSize, 5);
}

TEST_F(FileRecord, ClosingAClosedRecordIsHarmless) {
    const Plot3DFilePtr record = createPlot3DFile("wing.x", true);
    EXPECT_TRUE(closePlot3DFile(*record));
}

TEST_F(FileRecord, RewindingGoesToTheStart) {
    ASSERT_TRUE(openText("3*7 9").stream->seek(4));
    file->repeatCount = 2;
    rewindPlot3DFile(*file);
    EXPECT_EQ(file->stream->tell(), 0);
    EXPECT_EQ(file->repeatCount, 0);
}

TEST_F(FileRecord, ReportNamesTheFileOnALineOfItsOwn) {
    reportFileError(*createPlot3DFile("a/wing.x", true), "Something is wrong");
    EXPECT_EQ(messages(), Texts({"Something is wrong\nFile: a/wing.x"}));
}

TEST_F(FileRecord, CopyHasTheStructureAndItsOwnName) {
    sniff(FileBytes(Order_e::Swapped, 8).record("2357").str());
    file->numVars = 5;
    file->relaxedChecks = true;
    file->segmentBoundaries = {17, 19};
    file->numGrids = 1;
    file->gridDims = {{2, 3, 5}, {7, 11, 13}}; // the second is left over from a trial
    Plot3DFilePtr copy;
    ASSERT_TRUE(copyPlot3DFile(*file, copy, "other.x"));
    EXPECT_EQ(copy->fileName.str(), "other.x");
    EXPECT_EQ(copy->encoding, Plot3DEncoding_FortranUnformatted);
    EXPECT_TRUE(copy->byteSwap);
    EXPECT_EQ(copy->markerSize, 8U);
    EXPECT_EQ(copy->fileSize, 20);
    EXPECT_EQ(copy->numVars, 5);
    EXPECT_EQ(copy->numGrids, 1);
    EXPECT_TRUE(copy->relaxedChecks);
    EXPECT_EQ(copy->segmentBoundaries, file->segmentBoundaries);
    EXPECT_EQ(copy->gridDims, std::vector<Plot3DGridDims_s>({{2, 3, 5}}));
}

TEST_F(FileRecord, CopyHasEveryWordOfTheStructure) {
    openText("3*7");
    file->dataStructure = Plot3DDataStructure_2D;
    file->style = Plot3DStyle_Swift;
    file->isSolutionOrFunction = file->isMultiGrid = file->hasIBlank = true;
    file->isDoublePrecision = file->inSegmentedRecord = file->solutionsShareStructure = true;
    file->numScalars = 5;
    file->numSpecies = 7;
    Plot3DFilePtr copy;
    ASSERT_TRUE(copyPlot3DFile(*file, copy, "other.x"));
    EXPECT_EQ(copy->dataStructure, Plot3DDataStructure_2D);
    EXPECT_EQ(copy->style, Plot3DStyle_Swift);
    EXPECT_TRUE(copy->isSolutionOrFunction && copy->isMultiGrid && copy->hasIBlank);
    EXPECT_TRUE(copy->isDoublePrecision && copy->inSegmentedRecord);
    EXPECT_TRUE(copy->solutionsShareStructure);
    EXPECT_EQ(copy->numScalars, 5);
    EXPECT_EQ(copy->numSpecies, 7);
}

TEST_F(FileRecord, CopyHasNoTimeNoOffsetsAndNoReadingState) {
    openText("3*7");
    file->solutionTime = 1.5;
    file->varOffsets = HostArray<std::int64_t>::allocate(3, "offsets");
    file->repeatCount = 2;
    Plot3DFilePtr copy;
    ASSERT_TRUE(copyPlot3DFile(*file, copy, "other.x"));
    EXPECT_EQ(copy->solutionTime, 0.0);
    EXPECT_FALSE(copy->varOffsets);
    EXPECT_EQ(copy->repeatCount, 0);
    EXPECT_EQ(copy->stream, nullptr);
}

TEST_F(FileRecord, CopyOutlivesItsSource) {
    openText("3*7");
    Plot3DFilePtr copy;
    ASSERT_TRUE(copyPlot3DFile(*file, copy, "wing.x"));
    destroyPlot3DFile(file);
    EXPECT_TRUE(openPlot3DFile(*copy));
}

TEST_F(FileRecord, CopyWithoutMemoryForTheNameIsNull) {
    openText("3*7");
    Plot3DFilePtr copy = createPlot3DFile("old.x", true);
    host().failCall("QuorUtilStringAlloc", 1);
    EXPECT_FALSE(copyPlot3DFile(*file, copy, "other.x"));
    EXPECT_EQ(copy, nullptr);
}

} // namespace
} // namespace quorvia::quorutildataio
