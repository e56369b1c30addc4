// What a walk delivers, in which order, and how it stops.
#include "RecordingReceiver.h"
#include "StructureTest.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {
namespace {

class LayoutWalk : public StructureTest {
protected:
    /// A short text would be refused for its size alone.
    Plot3DFilePtr text(const std::string& start, Plot3DDataStructure_e dataStructure,
                       bool isSolutionOrFunction = gridFile,
                       Plot3DStyle_e style = Plot3DStyle_Classic) {
        return openRecord(start + std::string(99, ' '), dataStructure, isSolutionOrFunction, style);
    }

    bool walk(Plot3DFile_s& file, QuorSetHandle gridSet = nullptr) {
        const Plot3DItemReceiver_s receiver = recording.receiver();
        return parseLayout(file, true, gridSet, &receiver);
    }

    /// Two function grids with one variable: 2 x 3 and 5 x 7 points, in text.
    Plot3DFilePtr twoFunctionGrids() {
        auto file = text("2\n2 3 1\n5 7 1\n6*0.5\n35*0.5\n", Plot3DDataStructure_2D,
                         solutionOrFunction, Plot3DStyle_Function);
        file->isMultiGrid = true;
        return file;
    }

    static HostSet setOf(std::int64_t member) {
        HostSet set(QuorUtilSetAlloc(false));
        QuorUtilSetAddMember(set.get(), member, false);
        return set;
    }

    RecordingReceiver recording;
};

using Texts = std::vector<std::string>;

TEST_F(LayoutWalk, DeliversFieldsAndIBlankOfEachGrid) {
    auto file = text("2\n2 3\n1 2\n18*0.5\n6*0.5\n", Plot3DDataStructure_2D);
    file->isMultiGrid = true;
    file->hasIBlank = true;
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(
        recording.texts(),
        (Texts{"variable 0 grid 0 zone 0 in plane -1", "variable 1 grid 0 zone 0 in plane -1",
               "iblank 2 grid 0 zone 0 in plane -1", "variable 0 grid 1 zone 1 in plane -1",
               "variable 1 grid 1 zone 1 in plane -1", "iblank 2 grid 1 zone 1 in plane -1"}));
}

TEST_F(LayoutWalk, DeliversPlanesOneAfterTheOther) {
    auto file = text("1 3 2\n24*0.5\n", Plot3DDataStructure_3DPlanes);
    file->hasIBlank = true;
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(recording.texts(),
              (Texts{"variable 0 grid 0 zone 0 in plane 0", "variable 1 grid 0 zone 0 in plane 0",
                     "variable 2 grid 0 zone 0 in plane 0", "iblank 3 grid 0 zone 0 in plane 0",
                     "variable 0 grid 0 zone 0 in plane 1", "variable 1 grid 0 zone 0 in plane 1",
                     "variable 2 grid 0 zone 0 in plane 1", "iblank 3 grid 0 zone 0 in plane 1"}));
}

TEST_F(LayoutWalk, DeliversConnectivityBehindTheCoordinates) {
    auto file = text("4 2 0\n12*0.5\n8*1\n", Plot3DDataStructure_Unstructured);
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(recording.texts(), (Texts{"variable 0 grid 0 zone 0 in plane -999",
                                        "variable 1 grid 0 zone 0 in plane -999",
                                        "variable 2 grid 0 zone 0 in plane -999",
                                        "connectivity 0 grid 0 zone 0 in plane 0"}));
}

TEST_F(LayoutWalk, DeliversNoConnectivityOfAnUnstructuredSolution) {
    auto file =
        text("4 1 1\n4*0.5\n20*0.5\n", Plot3DDataStructure_Unstructured, solutionOrFunction);
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(recording.texts().front(), "scalars 0 grid 0 zone 0 in plane -999");
    EXPECT_EQ(recording.texts().back(), "variable 4 grid 0 zone 0 in plane -999");
}

TEST_F(LayoutWalk, DeliversScalarsAheadOf1DVariables) {
    auto file = text("2\n4*0.5\n6*0.5\n", Plot3DDataStructure_1D, solutionOrFunction);
    file->numGrids = 1;
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(
        recording.texts(),
        (Texts{"scalars 0 grid 0 zone 0 in plane -999", "variable 0 grid 0 zone 0 in plane -1",
               "variable 1 grid 0 zone 0 in plane -1", "variable 2 grid 0 zone 0 in plane -1"}));
}

TEST_F(LayoutWalk, Takes1DWholeWhateverIsSelected) {
    auto file = text("2\n2*0.5\n", Plot3DDataStructure_1D);
    file->numGrids = 1;
    EXPECT_TRUE(walk(*file, setOf(2).get()));
    EXPECT_EQ(recording.texts(), Texts{"variable 0 grid 0 zone 0 in plane -1"});
}

TEST_F(LayoutWalk, DeliversNothingOfA1DFileWithoutCountOfGrids) {
    auto file = text("2\n2*0.5\n", Plot3DDataStructure_1D);
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(recording.texts(), Texts());
}

TEST_F(LayoutWalk, KeepsTheZoneAcrossGridsThatAreNotSelected) {
    auto file = text("3\n1 2\n1 3\n1 5\n4*1\n6*1\n10*1\n", Plot3DDataStructure_2D);
    file->isMultiGrid = true;
    EXPECT_TRUE(walk(*file, setOf(2).get()));
    EXPECT_EQ(
        recording.texts(),
        (Texts{"variable 0 grid 0 zone -1 out plane -1", "variable 1 grid 0 zone -1 out plane -1",
               "variable 0 grid 1 zone 0 in plane -1", "variable 1 grid 1 zone 0 in plane -1",
               "variable 0 grid 2 zone 0 out plane -1", "variable 1 grid 2 zone 0 out plane -1"}));
}

TEST_F(LayoutWalk, TakesAnEmptySetForAllGrids) {
    auto file = twoFunctionGrids();
    recording.takesTimes = false;
    const HostSet empty(QuorUtilSetAlloc(false));
    EXPECT_TRUE(walk(*file, empty.get()));
    EXPECT_EQ(recording.texts(), (Texts{"variable 0 grid 0 zone 0 in plane -1",
                                        "variable 0 grid 1 zone 1 in plane -1"}));
}

TEST_F(LayoutWalk, AsksForTheTimeOfEachFunctionGrid) {
    auto file = twoFunctionGrids();
    EXPECT_TRUE(walk(*file, setOf(2).get()));
    EXPECT_EQ(recording.texts(),
              (Texts{"time zone -1 out", "variable 0 grid 0 zone -1 out plane -1", "time zone 0 in",
                     "variable 0 grid 1 zone 0 in plane -1"}));
}

TEST_F(LayoutWalk, AsksForNoTimeOfAGridFile) {
    auto file = text("2 3\n12*0.5\n", Plot3DDataStructure_2D, gridFile, Plot3DStyle_Function);
    EXPECT_TRUE(walk(*file));
    EXPECT_EQ(recording.texts().front(), "variable 0 grid 0 zone 0 in plane -1");
}

TEST_F(LayoutWalk, StopsWhenTheReceiverSaysSo) {
    for (const std::int64_t count : {1, 2, 3, 4}) {
        auto file = twoFunctionGrids();
        recording.items.clear();
        recording.stopAfter = count;
        EXPECT_FALSE(walk(*file));
        EXPECT_EQ(std::ssize(recording.items), count);
    }
}

TEST_F(LayoutWalk, LooksAtNothingBehindTheLastItem) {
    auto file = text("2\n2*0.5\nno numbers here\n", Plot3DDataStructure_1D);
    file->numGrids = 1;
    EXPECT_TRUE(walk(*file));
}

TEST_F(LayoutWalk, EndsAtTheFirstMissingValueWhateverTheHeaderPromises) {
    auto file = text("2 3 5\n2147483647 0\n13*0.5\n60*0.5\n", Plot3DDataStructure_3DWhole,
                     solutionOrFunction, Plot3DStyle_Overflow);
    EXPECT_FALSE(walk(*file));
    EXPECT_EQ(recording.texts().back(), "variable 2 grid 0 zone 0 in plane -1");
}

// The header is a record, and nothing follows: the grid's own records are missing.
TEST_F(LayoutWalk, TellsWhichRecordIsMissing) {
    const std::string header = FileBytes().record(FileBytes().integers({2, 3, 5})).str();
    auto grid = openRecord(header, Plot3DDataStructure_3DWhole);
    grid->fileSize = 1000; // as if the file had been cut after it was measured
    EXPECT_FALSE(walk(*grid));
    auto solution = openRecord(header, Plot3DDataStructure_3DWhole, solutionOrFunction);
    solution->fileSize = 1000;
    EXPECT_FALSE(walk(*solution));
    EXPECT_EQ(messages(), (Texts{"Invalid record length in record for Variable\nFile: record",
                                 "Invalid record length in record for Scalars\nFile: record"}));
    EXPECT_EQ(recording.texts(), Texts());
}

TEST_F(LayoutWalk, IsSilentAboutMissingRecordsWithoutReport) {
    auto file = openRecord(FileBytes().record(FileBytes().integers({2, 3, 5})).str(),
                           Plot3DDataStructure_3DWhole);
    file->fileSize = 1000;
    const Plot3DItemReceiver_s receiver = recording.receiver();
    EXPECT_FALSE(parseLayout(*file, false, nullptr, &receiver));
    EXPECT_EQ(messages(), Texts());
}

} // namespace
} // namespace quorvia::quorutildataio
