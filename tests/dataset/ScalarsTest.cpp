#include "dataset/items/Scalars.h"

#include <filesystem>

#include "DatasetFixture.h"
#include "dataset/items/ItemContext.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;

namespace {

const GridList threeGrids = {{2, 3, 5}, {3, 2, 2}, {2, 2, 7}};

class Scalars : public DatasetTest {
protected:
    FileDescription_s overflow(const GridList& grids, std::int32_t species) {
        FileDescription_s solution =
            describeSolution(grids, 0.75, Layout_e::ThreeDWhole, FileKind_e::OverflowSolution);
        solution.numVars = 6 + species;
        solution.numSpecies = species;
        for (auto& scalars : solution.scalars)
            for (const double value : {1.4, 0.5, 300.25, 7.0, 2.5, 3.5, 4.5, 1.1, 1.2})
                scalars.push_back(value);
        for (auto& scalars : solution.scalars)
            scalars.resize(static_cast<std::size_t>(scalarCount(solution)), 1.3);
        return solution;
    }
    /// Loads a grid file and the solution; the record of the solution.
    Plot3DFile_s& loadWith(const FileDescription_s& solution, const FileForm_s& form = binary()) {
        Plot3DFile_s& grid = write("x", describeGrid(solution.grids, solution.layout));
        Plot3DFile_s& file = write("q", solution, form);
        EXPECT_TRUE(load({step(&grid, &file)}));
        return file;
    }
    static std::string item(std::int32_t zoneNumber, const std::string& name) {
        const host::AuxData& items = zone(zoneNumber).auxData;
        const auto found = items.find(name);
        return found != items.end() ? found->second : "(none)";
    }
    static std::string itemOfDataSet(const std::string& name) {
        const host::AuxData& items = host().frame().dataSet()->auxData;
        const auto found = items.find(name);
        return found != items.end() ? found->second : "(none)";
    }
};

class ScalarsInEveryForm : public Scalars, public ::testing::WithParamInterface<FileForm_s> {};

TEST_P(ScalarsInEveryForm, LandOnTheirZonesAndTheLastOnTheDataSet) {
    const Plot3DFile_s& file = loadWith(describeSolution(threeGrids, 0.5), GetParam());
    EXPECT_EQ(zone(1).auxData, (host::AuxData{{"Common.ReferenceMachNumber", "1.25"},
                                              {"Common.AngleOfAttack", "2"},
                                              {"Common.ReynoldsNumber", "3E+06"}}));
    EXPECT_EQ(item(3, "Common.ReferenceMachNumber"), "3.25");
    EXPECT_EQ(itemOfDataSet("Common.ReferenceMachNumber"), "3.25");
    EXPECT_EQ(itemOfDataSet("Common.AngleOfAttack"), "2");
    EXPECT_EQ(itemOfDataSet("Common.ReynoldsNumber"), "3E+06");
    EXPECT_EQ(zone(2).solutionTime, 0.5);
    EXPECT_EQ(file.solutionTime, 0.5);
}

INSTANTIATE_TEST_SUITE_P(All, ScalarsInEveryForm,
                         ::testing::Values(binary(), fortran(ByteOrder_e::Big),
                                           binary(ByteOrder_e::Big, Precision_e::Double), text()));

TEST_F(Scalars, OfGridsThatAreNotLoadedAreDropped) {
    selectGrids({1, 3});
    const Plot3DFile_s& file = loadWith(describeSolution(threeGrids, 0.5));
    EXPECT_EQ(item(2, "Common.ReferenceMachNumber"), "3.25");
    EXPECT_EQ(file.auxDataOffsets.count(), 2);
    EXPECT_EQ(file.auxDataOffsets[0], 4 + 3 * 12);
    EXPECT_EQ(host().callCount("QuorUtilZoneSetSolutionTime"), 2);
}

TEST_F(Scalars, OfALastGridThatIsNotLoadedAreNotOnTheDataSet) {
    selectGrids({1, 2});
    loadWith(describeSolution(threeGrids, 0.5));
    EXPECT_EQ(itemOfDataSet("Common.ReferenceMachNumber"), "2.25");
}

TEST_F(Scalars, OfOverflowHaveTheirNames) {
    for (const auto precision : {Precision_e::Single, Precision_e::Double}) {
        loadWith(overflow({{2, 3, 5}}, 3), fortran(ByteOrder_e::Little, precision));
        host::AuxData expected = {{"Common.ReferenceMachNumber", "1.25"},
                                  {"Common.AngleOfAttack", "2"},
                                  {"Common.ReynoldsNumber", "3E+06"},
                                  {"G", "1.4"},
                                  {"B", "0.5"},
                                  {"T", "300.25"},
                                  {"I", "7"},
                                  {"H", "2.5"},
                                  {"H1", "3.5"},
                                  {"H2", "4.5"},
                                  {"G1", "1.1"},
                                  {"G2", "1.2"},
                                  {"G3", "1.3"}};
        EXPECT_EQ(zone(1).auxData, expected);
        EXPECT_EQ(itemOfDataSet("G"), "(none)");
        EXPECT_EQ(zone(1).solutionTime, 0.75);
    }
}

TEST_F(Scalars, OfSwiftEndWithTheirOwn) {
    FileDescription_s solution =
        describeSolution({{2, 3, 5}}, 0.5, Layout_e::ThreeDWhole, FileKind_e::SwiftSolution);
    solution.scalars[0].push_back(0.125);
    loadWith(solution);
    EXPECT_EQ(item(1, "OMAR"), "0.125");
    EXPECT_EQ(itemOfDataSet("OMAR"), "(none)");
}

class ScalarsOfLaterFiles : public Scalars {
protected:
    bool loadBoth(Plot3DFile_s& first, Plot3DFile_s& later) {
        Plot3DFile_s& grid = write("x", describeGrid({{2, 3, 5}}));
        return load({step(&grid, &first), step(&grid, &later)});
    }
};

TEST_F(ScalarsOfLaterFiles, OfOverflowAreThoseOfAScan) {
    for (const FileForm_s& form : {fortran(ByteOrder_e::Big, Precision_e::Double), binary()}) {
        const FileDescription_s solution = overflow({{2, 3, 5}}, 3);
        ASSERT_TRUE(loadBoth(write("q1", solution, form), write("q2", solution, form)));
        EXPECT_EQ(zone(2).auxData, zone(1).auxData);
        EXPECT_EQ(item(2, "I"), "7");
        EXPECT_EQ(item(2, "G3"), "1.3");
        EXPECT_EQ(zone(2).solutionTime, 0.75);
    }
}

TEST_F(ScalarsOfLaterFiles, OfSwiftAreThoseOfAScan) {
    FileDescription_s solution =
        describeSolution({{2, 3, 5}}, 0.5, Layout_e::ThreeDWhole, FileKind_e::SwiftSolution);
    solution.scalars[0].push_back(0.125);
    ASSERT_TRUE(loadBoth(write("q1", solution), write("q2", solution)));
    EXPECT_EQ(item(2, "OMAR"), "0.125");
    EXPECT_EQ(zone(2).auxData, zone(1).auxData);
}

// The later file breaks off behind its first gamma: neither that nor its fields are looked at.
TEST_F(ScalarsOfLaterFiles, OfOverflowMayLackGammas) {
    const FileDescription_s solution = overflow({{2, 3, 5}}, 3);
    Plot3DFile_s& later = write("q2", solution);
    constexpr std::uintmax_t header = 5 * 4;
    std::filesystem::resize_file(later.fileName.str(), header + 12 * 4);
    ASSERT_TRUE(loadBoth(write("q1", solution), later));
    EXPECT_EQ(item(2, "G1"), "1.1");
    EXPECT_EQ(item(2, "G2"), "(none)");
    EXPECT_EQ(messages(), Texts());
}

/// One zone, and a record whose numbers are all read as scalars.
class ScalarItem : public Scalars {
protected:
    void SetUp() override {
        makeDataSet({"X"});
        makeZone({2, 3, 5}, 1);
    }
    Plot3DFile_s& textOf(const std::string& numbers, Plot3DStyle_e style, std::int32_t numScalars) {
        Plot3DFile_s& file = writeBytes("q.txt", numbers);
        file.isSolutionOrFunction = true;
        file.style = style;
        file.numScalars = numScalars;
        EXPECT_TRUE(openPlot3DFile(file));
        return file;
    }
    bool setUp(Plot3DFile_s& file, bool include = true) {
        return setUpScalarsItem(file, 0, include, true, makeItemContext(options, 1, 1));
    }
};

TEST_F(ScalarItem, OfOverflowWithElevenHasNoG1) {
    Plot3DFile_s& file = textOf("1 2 3 4 5 6 7 8 9 10 11 12", Plot3DStyle_Overflow, 11);
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(item(1, "H2"), "11");
    EXPECT_EQ(item(1, "G1"), "(none)");
}

TEST_F(ScalarItem, OfOverflowPassesOverGammasThatFail) {
    Plot3DFile_s& file = textOf("1 2 3 4 5 6 7 8 9 10 11 12 1-2 14 * 16", Plot3DStyle_Overflow, 17);
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(item(1, "G1"), "12");
    EXPECT_EQ(item(1, "G2"), "(none)");
    EXPECT_EQ(item(1, "G3"), "14");
    EXPECT_EQ(item(1, "G4"), "(none)");
    EXPECT_EQ(item(1, "G5"), "16");
    EXPECT_EQ(item(1, "G6"), "(none)");
    EXPECT_EQ(messages(), Texts());
}

// A header that claims 2 billion species must not make as many attempts.
TEST_F(ScalarItem, OfOverflowTriesNoMoreGammasThanTheFileBearsOut) {
    Plot3DFile_s& file = textOf("11*1 9999999*2", Plot3DStyle_Overflow, 2000000000);
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(item(1, "G1000"), "2");
    EXPECT_EQ(item(1, "G1001"), "(none)");
}

TEST_F(ScalarItem, OfOverflowThatAreNotTriedAreNoValues) {
    Plot3DFile_s& file = textOf("11*1 5000*2 7", Plot3DStyle_Overflow, 5011);
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(item(1, "G1001"), "(none)");
    double next = 0.0;
    EXPECT_TRUE(readReal(file, next));
    EXPECT_EQ(next, 7.0);
}

TEST_F(ScalarItem, OfOneDimensionIsOneOfFourInEveryStyle) {
    Plot3DFile_s& file = textOf("1 2 3 4 5", Plot3DStyle_Swift, 4);
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(item(1, "OMAR"), "(none)");
}

TEST_F(ScalarItem, ThatCannotBeReadIsTold) {
    EXPECT_FALSE(setUp(textOf("1 2", Plot3DStyle_Classic, 4)));
    EXPECT_FALSE(setUp(textOf("1 2 3 x", Plot3DStyle_Classic, 4), false));
    EXPECT_EQ(messages(), (Texts{"Error loading Scalars.", "Error loading Scalars."}));
}

TEST_F(ScalarItem, ThatTheHostRefusesIsTold) {
    host().failCall("QuorUtilAuxDataSetItem", 2);
    EXPECT_FALSE(setUp(textOf("1 2 3 4", Plot3DStyle_Classic, 4)));
    EXPECT_EQ(messages(), Texts{"Error loading Scalars."});
}

TEST_F(ScalarItem, GivesItsPlaceToTheTimeOfTheName) {
    Plot3DFile_s& file = textOf("1 2 3 4", Plot3DStyle_Classic, 4);
    options.solutionFiles = {file.fileName.str()};
    options.solutionTimes = {{file.fileName.str(), 0.125}};
    options.extractTimeFromSolFileNames = true;
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(zone(1).solutionTime, 0.125);
    EXPECT_EQ(file.solutionTime, 0.125);
}

TEST_F(ScalarItem, KeepsTheTimeOfAFileWhoseNameHasNone) {
    Plot3DFile_s& file = textOf("1 2 3 4", Plot3DStyle_Classic, 4);
    options.solutionFiles = {file.fileName.str()};
    options.solutionTimes = {{"another file", 0.125}};
    options.extractTimeFromSolFileNames = true;
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(zone(1).solutionTime, 4.0);
}

TEST_F(ScalarItem, KeepsItsTimeUnlessTimesAreExtracted) {
    Plot3DFile_s& file = textOf("1 2 3 4", Plot3DStyle_Classic, 4);
    options.solutionTimes = {{file.fileName.str(), 0.125}};
    EXPECT_TRUE(setUp(file));
    EXPECT_EQ(zone(1).solutionTime, 4.0);
}

class FunctionTime : public ScalarItem {
protected:
    bool setTime(std::int32_t zoneOfWalk, bool include) {
        Plot3DItemContext_s context = makeItemContext(options, 1, 1);
        return setFunctionZoneSolutionTime(file, zoneOfWalk, include, &context);
    }
    Plot3DFile_s& file = recordOf("f.fun");
};

TEST_F(FunctionTime, IsThatOfTheFilesName) {
    options.solutionTimes = {{"f.fun", 0.375}};
    EXPECT_TRUE(setTime(0, true));
    EXPECT_EQ(zone(1).solutionTime, 0.375);
    EXPECT_EQ(file.solutionTime, 0.375);
}

TEST_F(FunctionTime, OfANameThatHasNoneFails) {
    options.solutionTimes = {{"another.fun", 0.375}};
    EXPECT_FALSE(setTime(0, true));
    EXPECT_FALSE(setTime(-1, false));
}

TEST_F(FunctionTime, IsLeftAloneWithoutTimes) {
    EXPECT_TRUE(setTime(0, true));
    EXPECT_EQ(host().callCount("QuorUtilZoneSetSolutionTime"), 0);
}

// Ahead of the first selected grid the walk's zone is -1: the zone of another time step.
TEST_F(FunctionTime, OfAGridThatIsNotLoadedTouchesNoZone) {
    options.solutionTimes = {{"f.fun", 0.375}};
    EXPECT_TRUE(setTime(-1, false));
    EXPECT_TRUE(setTime(0, false));
    EXPECT_EQ(host().callCount("QuorUtilZoneSetSolutionTime"), 0);
}

class ScalarToAuxData : public ScalarItem {
protected:
    bool readItem(const std::string& bytes, bool isDouble, bool byteSwap, const char* name) {
        Plot3DFile_s& file = writeBytes("q.bin", bytes);
        EXPECT_TRUE(openPlot3DFile(file));
        return readScalarToAuxData(*file.stream, isDouble, byteSwap, QuorUtilAuxDataZoneGetRef(1),
                                   name);
    }
};

TEST_F(ScalarToAuxData, ReadsRealsOfBothWidthsAndOrders) {
    EXPECT_TRUE(readItem({"\0\0\x20\x40", 4}, false, false, "A"));
    EXPECT_TRUE(readItem({"\x40\x20\0\0", 4}, false, true, "B"));
    EXPECT_TRUE(readItem({"\0\0\0\0\0\0\x04\x40", 8}, true, false, "C"));
    EXPECT_TRUE(readItem({"\x40\x04\0\0\0\0\0\0", 8}, true, true, "D"));
    for (const char* name : {"A", "B", "C", "D"})
        EXPECT_EQ(item(1, name), "2.5") << name;
}

TEST_F(ScalarToAuxData, TakesLettersFromIToNForIntegers) {
    EXPECT_TRUE(readItem({"\x11\0\0\0", 4}, true, false, "I"));
    EXPECT_TRUE(readItem({"\0\0\0\x11", 4}, false, true, "N"));
    EXPECT_EQ(item(1, "I"), "17");
    EXPECT_EQ(item(1, "N"), "17");
    EXPECT_FALSE(readItem({"\x11\0\0\0", 4}, true, false, "O"));
}

TEST_F(ScalarToAuxData, FailsAtTheEndOfTheFile) {
    EXPECT_FALSE(readItem("abc", false, false, "A"));
    EXPECT_EQ(item(1, "A"), "(none)");
}

} // namespace
