#include "dataset/zones/FileSetSetup.h"
#include "dataset/zones/OffsetReuse.h"

#include <algorithm>
#include <filesystem>

#include "DatasetFixture.h"
#include "support/FakeDisk.h"

using namespace quorvia;
using namespace quorvia::quorutildataio;
using namespace quorvia::testsupport;
using host::FieldState_e;

namespace {

class FileSetSetup : public DatasetTest {
protected:
    /// Values that tell the files of a time series apart.
    static FileDescription_s shifted(FileDescription_s description, double shift) {
        const auto value = description.value;
        description.value = [=](std::int32_t grid, std::int32_t variable, std::int32_t i,
                                std::int32_t j,
                                std::int32_t k) { return value(grid, variable, i, j, k) + shift; };
        return description;
    }
    static FileDescription_s solutionAt(const GridList& grids, double time) {
        return shifted(describeSolution(grids, time), 100000.0 * time);
    }
    static bool wasOpened(const FakeDisk& files, const Plot3DFile_s& file) {
        return std::count(files.opened.begin(), files.opened.end(), file.fileName.str()) > 0;
    }
    /// The labels of the arrays that setting up asked the host for.
    static Texts arrayLabels() {
        Texts labels;
        for (const std::string& line : host().log().transcript)
            if (const std::size_t end = line.find(" Array\""); end != std::string::npos) {
                const std::size_t begin = line.rfind('"', end) + 1;
                labels.push_back(line.substr(begin, end + 6 - begin));
            }
        return labels;
    }
};

TEST_F(FileSetSetup, SharesTheOneGridWithAllTimeSteps) {
    FileDescription_s grid = describeGrid(threeGrids);
    grid.hasIBlank = true;
    Plot3DFile_s& x = write("x", grid);
    TimeSteps steps;
    for (const int time : {1, 2, 3})
        steps.push_back(step(&x, &write("q" + std::to_string(time), solutionAt(threeGrids, time))));
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    ASSERT_TRUE(load(steps));
    EXPECT_EQ(std::count(files.opened.begin(), files.opened.end(), x.fileName.str()), 1);
    EXPECT_EQ(zoneCount(), 9);
    for (std::int32_t var = 1; var <= 4; ++var)
        EXPECT_EQ(holder(8, var), 2);
    EXPECT_EQ(holder(8, 5), 8);
}

TEST_F(FileSetSetup, TakesLaterSolutionsFromThePositionsOfTheFirst) {
    Plot3DFile_s& x = write("x", describeGrid(threeGrids));
    for (const FileForm_s& form :
         {binary(), fortran(ByteOrder_e::Big), binary(ByteOrder_e::Big, Precision_e::Double)}) {
        Plot3DFile_s& q1 = write("q1", solutionAt(threeGrids, 1), form);
        Plot3DFile_s& q2 = write("q2", solutionAt(threeGrids, 2), form);
        ASSERT_TRUE(load({step(&x, &q1), step(&x, &q2)}));
        EXPECT_EQ(values(6, 8), fieldOf(solutionAt(threeGrids, 2), 2, 4));
        EXPECT_EQ(values(3, 8), fieldOf(solutionAt(threeGrids, 1), 2, 4));
        EXPECT_EQ(zone(5).solutionTime, 2.0);
        EXPECT_EQ(q2.solutionTime, 2.0);
        EXPECT_EQ(zone(6).auxData.at("Common.ReferenceMachNumber"), "3.25");
    }
}

// The number of the variable in its file, where a scan tells that at the host.
TEST_F(FileSetSetup, AnnouncesFieldsAtPositionsOfTheFirstByTheirPlaceInTheFile) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q1 = write("q1", solutionAt(oneGrid, 1));
    ASSERT_TRUE(
        load({step(&x, &q1), step(&x, &write("0123456789.later", solutionAt(oneGrid, 2)))}));
    EXPECT_EQ(host().log().progress.texts().back(),
              "Setting up Zone=002, Var=005 from Grid 001 in .../0123456789.later");
}

TEST_F(FileSetSetup, LeavesTheDataSetsItemsToTheFirstTimeStep) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    FileDescription_s later = solutionAt(oneGrid, 2);
    later.scalars[0][0] = 0.75;
    ASSERT_TRUE(
        load({step(&x, &write("q1", solutionAt(oneGrid, 1))), step(&x, &write("q2", later))}));
    EXPECT_EQ(zone(2).auxData.at("Common.ReferenceMachNumber"), "0.75");
    EXPECT_EQ(host().frame().dataSet()->auxData.at("Common.ReferenceMachNumber"), "1.25");
}

TEST_F(FileSetSetup, ReadsNothingOfLaterSolutionsButTheirScalars) {
    const GridList big = {{41, 43, 47}};
    Plot3DFile_s& x = write("x", describeGrid(big));
    Plot3DFile_s& q1 = write("q1", describeSolution(big, 1));
    Plot3DFile_s& q2 = write("q2", describeSolution(big, 2));
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    ASSERT_TRUE(load({step(&x, &q1), step(&x, &q2)}));
    EXPECT_LT(files.bytesRead, 3 * 4096 + 1);
    EXPECT_EQ(state(2, 4), FieldState_e::Deferred);
}

TEST_F(FileSetSetup, ScansLaterSolutionsThatDoNotShareTheirStructure) {
    options.solutionsShareStructure = false;
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q1 = write("q1", solutionAt(oneGrid, 1));
    Plot3DFile_s& q2 = write("q2", solutionAt(oneGrid, 2), fortran(ByteOrder_e::Big));
    ASSERT_TRUE(load({step(&x, &q1), step(&x, &q2)}));
    EXPECT_EQ(values(2, 5), fieldOf(solutionAt(oneGrid, 2), 0, 1));
    EXPECT_EQ(holder(2, 1), 1);
}

TEST_F(FileSetSetup, ReadsATimeSeriesOfTextInFull) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid), text());
    ASSERT_TRUE(load({step(&x, &write("q1", solutionAt(oneGrid, 1), text())),
                      step(&x, &write("q2", solutionAt(oneGrid, 2), text()))}));
    EXPECT_EQ(values(2, 8), fieldOf(solutionAt(oneGrid, 2), 0, 4));
}

// Positions stand for whole fields, so that a subset has to be read from every file.
TEST_F(FileSetSetup, ReadsASubsetOfEveryTimeStep) {
    options.iRange = {2, 2, 1};
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    ASSERT_TRUE(load({step(&x, &write("q1", solutionAt(oneGrid, 1))),
                      step(&x, &write("q2", solutionAt(oneGrid, 2)))}));
    const Numbers whole = fieldOf(solutionAt(oneGrid, 2), 0, 4);
    Numbers secondI;
    for (std::size_t n = 1; n < whole.size(); n += 2)
        secondI.push_back(whole[n]);
    EXPECT_EQ(values(2, 8), secondI);
}

TEST_F(FileSetSetup, DoesNotOpenLaterGridsOfOneStructure) {
    Plot3DFile_s& x1 = write("x1", describeGrid(threeGrids));
    FileDescription_s moved = shifted(describeGrid(threeGrids), 0.5);
    moved.hasIBlank = false;
    Plot3DFile_s& x2 = write("x2", moved);
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    ASSERT_TRUE(load({step(&x1), step(&x2)}));
    EXPECT_FALSE(wasOpened(files, x2));
    EXPECT_EQ(holder(5, 2), 5);
    EXPECT_EQ(values(5, 2), fieldOf(moved, 1, 1));
}

TEST_F(FileSetSetup, TakesIBlankOfLaterGridsFromThePositionsOfTheFirst) {
    FileDescription_s grid = describeGrid(threeGrids);
    grid.hasIBlank = true;
    Plot3DFile_s& x1 = write("x1", grid, fortran());
    grid.iblank = [](std::int32_t g, std::int32_t i, std::int32_t, std::int32_t) {
        return 5 + g - i;
    };
    Plot3DFile_s& x2 = write("x2", grid, fortran());
    ASSERT_TRUE(load({step(&x1), step(&x2)}));
    EXPECT_EQ(values(6, 4), iblankOf(grid, 2));
    EXPECT_EQ(values(6, 3), fieldOf(grid, 2, 2));
}

TEST_F(FileSetSetup, ScansLaterGridsIfSolutionsDoNotShareStructure) {
    options.solutionsShareStructure = false;
    Plot3DFile_s& x1 = write("x1", describeGrid(oneGrid));
    Plot3DFile_s& x2 = write("x2", shifted(describeGrid(oneGrid), 0.5), fortran());
    const FakeDisk files(FakeDisk::Behind_e::Platform);
    ASSERT_TRUE(load({step(&x1), step(&x2)}));
    EXPECT_TRUE(wasOpened(files, x2));
    EXPECT_EQ(values(2, 3), fieldOf(shifted(describeGrid(oneGrid), 0.5), 0, 2));
}

TEST_F(FileSetSetup, ScansEveryGridThatIsNotUniform) {
    options.uniformGridStructure = false;
    Plot3DFile_s& x1 = write("x1", describeGrid(oneGrid));
    Plot3DFile_s& x2 = write("x2", describeGrid(threeGrids));
    ASSERT_TRUE(load({step(&x1), step(&x2)}));
    EXPECT_EQ(zoneCount(), 4);
    EXPECT_EQ(values(4, 1), fieldOf(describeGrid(threeGrids), 2, 0));
}

TEST_F(FileSetSetup, ReadsNoConnectivityOfLaterUnstructuredGrids) {
    const GridList surface = {{11, 5, 0}};
    const FileDescription_s moved = shifted(describeGrid(surface, Layout_e::Unstructured), 0.5);
    Plot3DFile_s& x1 = write("x1", describeGrid(surface, Layout_e::Unstructured));
    Plot3DFile_s& x2 = write("x2", moved);
    ASSERT_TRUE(load({step(&x1), step(&x2)}));
    EXPECT_NE(zone(1).nodeMap->nodes(), nullptr);
    EXPECT_EQ(zone(2).nodeMap->nodes(), nullptr);
    EXPECT_EQ(values(2, 3), fieldOf(moved, 0, 2));
}

TEST_F(FileSetSetup, IndexesFieldsByGridAndScalarsBySelectedGrid) {
    selectGrids({2, 3});
    Plot3DFile_s& x = write("x", describeGrid(threeGrids));
    Plot3DFile_s& q1 = write("q1", solutionAt(threeGrids, 1));
    Plot3DFile_s& q2 = write("q2", solutionAt(threeGrids, 2));
    ASSERT_TRUE(load({step(&x, &q1), step(&x, &q2)}));
    const std::int64_t header = 4 + 3 * 12;
    const std::int64_t scalars = 16;
    EXPECT_EQ(q1.varOffsets.count(), 15);
    EXPECT_EQ(q1.varOffsets[0], header + scalars);
    EXPECT_EQ(q1.auxDataOffsets.count(), 2);
    EXPECT_EQ(q1.auxDataOffsets[0], header + scalars + 5 * 4 * 30);
    EXPECT_EQ(q2.auxDataOffsets[1], q1.varOffsets[10] - scalars);
    EXPECT_EQ(values(4, 5), fieldOf(solutionAt(threeGrids, 2), 2, 1));
    EXPECT_EQ(zone(4).auxData.at("Common.ReferenceMachNumber"), "3.25");
}

TEST_F(FileSetSetup, TakesAnEmptySetForAllGrids) {
    selectGrids({});
    Plot3DFile_s& x = write("x", describeGrid(threeGrids));
    Plot3DFile_s& q1 = write("q1", solutionAt(threeGrids, 1));
    ASSERT_TRUE(load({step(&x, &q1), step(&x, &write("q2", solutionAt(threeGrids, 2)))}));
    EXPECT_EQ(q1.auxDataOffsets.count(), 3);
    EXPECT_EQ(zone(6).auxData.at("Common.ReferenceMachNumber"), "3.25");
}

TEST_F(FileSetSetup, MindsNoMembersOfTheSetBeyondTheGrids) {
    selectGrids({3, 7, 11, 1000});
    Plot3DFile_s& x = write("x", describeGrid(threeGrids));
    Plot3DFile_s& q1 = write("q1", solutionAt(threeGrids, 1));
    ASSERT_TRUE(load({step(&x, &q1), step(&x, &write("q2", solutionAt(threeGrids, 2)))}));
    EXPECT_EQ(q1.auxDataOffsets.count(), 3);
    EXPECT_EQ(zoneCount(), 2);
    EXPECT_EQ(zone(2).solutionTime, 2.0);
}

TEST_F(FileSetSetup, ScansFunctionFilesInEveryTimeStep) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    TimeSteps steps;
    for (const int time : {1, 2}) {
        const std::string n = std::to_string(time);
        Plot3DFile_s& q = write("q" + n, solutionAt(oneGrid, time));
        Plot3DFile_s& f = write("f" + n, shifted(describeFunction(oneGrid, 2), time));
        steps.push_back(step(&x, &q, {&f}));
    }
    ASSERT_TRUE(load(steps));
    EXPECT_EQ(values(1, 10), fieldOf(shifted(describeFunction(oneGrid, 2), 1), 0, 1));
    EXPECT_EQ(values(2, 9), fieldOf(shifted(describeFunction(oneGrid, 2), 2), 0, 0));
}

TEST_F(FileSetSetup, PutsTheVariablesOfFunctionFilesOneBehindTheOther) {
    FileDescription_s grid = describeGrid(oneGrid);
    grid.hasIBlank = true;
    Plot3DFile_s& f1 = write("f1", describeFunction(oneGrid, 2));
    Plot3DFile_s& f2 = write("f2", shifted(describeFunction(oneGrid, 3), 7));
    ASSERT_TRUE(load({step(&write("x", grid), nullptr, {&f1, &f2})}));
    EXPECT_EQ(values(1, 6), fieldOf(describeFunction(oneGrid, 2), 0, 1));
    EXPECT_EQ(values(1, 9), fieldOf(shifted(describeFunction(oneGrid, 3), 7), 0, 2));
}

TEST_F(FileSetSetup, StopsAtAFunctionFileWhoseNameHasNoTime) {
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    options.solutionTimes = {{"another", 1.0}};
    EXPECT_FALSE(load({step(&write("x", describeGrid(oneGrid)), nullptr, {&f})}));
    EXPECT_EQ(state(1, 4), FieldState_e::Empty);
}

TEST_F(FileSetSetup, AsksForItsArraysUnderTheirLabels) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q1 = write("q1", solutionAt(oneGrid, 1));
    Plot3DFile_s& q2 = write("q2", solutionAt(oneGrid, 2));
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    host().recordTranscript(true);
    ASSERT_TRUE(load({step(&x, &q1, {&f}), step(&x, &q2)}));
    EXPECT_EQ(arrayLabels(),
              (Texts{"Parent Zone Array", "Primary Grid Offset Array",
                     "Primary IBlank Offset Array", "Primary Solution Offset Array",
                     "Primary Solution Aux Data Offset Array", "Primary Function Offset Array",
                     "Subsequent Offset Array", "Aux Data Offset Array"}));
}

TEST_F(FileSetSetup, FailsWithoutMemoryForAnArray) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    Plot3DFile_s& f = write("f", describeFunction(oneGrid, 2));
    constexpr int arraysOfLoad = 5;
    for (int n = 1; n <= arraysOfLoad; ++n) {
        for (Plot3DFile_s* file : {&x, &q, &f}) {
            file->varOffsets.reset();
            file->iBlankOffsets.reset();
        }
        // Strings of the host: names and arrays of the load stand ahead of the arrays of files.
        host().clearFaults();
        host().failCall("QuorUtilStringAlloc", 2 + n);
        EXPECT_FALSE(load({step(&x, &q, {&f})})) << n;
        EXPECT_EQ(x.stream, nullptr);
        EXPECT_EQ(q.stream, nullptr);
        EXPECT_EQ(f.stream, nullptr);
    }
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileSetSetup, TellsOfAFileThatIsGone) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    std::filesystem::remove(q.fileName.str());
    EXPECT_FALSE(load({step(&x, &q)}));
    EXPECT_EQ(messages(), Texts{"The file " + q.fileName.str() + " could not be opened."});
}

// Files that are not compared with each other ahead of a load must not fill zones that they don't
// fit: a field of the host would be written past its end.
TEST_F(FileSetSetup, RefusesFilesThatDoNotFitTheZones) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    Plot3DFile_s& longer = write("f", describeFunction({{2, 3, 7}}, 1));
    EXPECT_FALSE(load({step(&x, &q, {&longer})}));
    Plot3DFile_s& more = write("q3", describeSolution(threeGrids, 1));
    EXPECT_FALSE(load({step(&x, &more)}));
    EXPECT_EQ(messages(),
              Texts{"The function file does not fit the grid.\nFile: " + longer.fileName.str()});
}

// Its structure was copied from the first file, and the file itself holds one grid of the three.
TEST_F(FileSetSetup, FailsWithoutWordAtALaterFileThatIsTooShort) {
    Plot3DFile_s& x = write("x", describeGrid(threeGrids));
    Plot3DFile_s& q1 = write("q1", describeSolution(threeGrids, 1));
    Plot3DFile_s& fewer = write("q2", describeSolution(oneGrid, 2));
    fewer.numGrids = 3;
    fewer.gridDims = q1.gridDims;
    EXPECT_FALSE(load({step(&x, &q1), step(&x, &fewer)}));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileSetSetup, RefusesPrimariesWithoutPositions) {
    const Plot3DFile_s& primary = write("x1", describeGrid(oneGrid));
    EXPECT_FALSE(reuseGridOffsets(primary, options, 1, write("x2", describeGrid(oneGrid))));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    EXPECT_FALSE(reuseSolutionOffsets(q, options, 1, 1, 3));
}

TEST_F(FileSetSetup, TakesNoPositionsThatNoScanHasNoted) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q = write("q", describeSolution(oneGrid, 1));
    TimeSteps steps = {step(&x, &q)};
    ASSERT_TRUE(load(steps));
    EXPECT_FALSE(setUpFileSet({.options = options,
                               .handler = steps[0],
                               .firstHandler = steps[0],
                               .firstZoneOfLoad = 1,
                               .firstZone = 1,
                               .shape = shape,
                               .isFirstFileSet = false}));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(FileSetSetup, StopsAtAnInterruptionOfTheReuse) {
    Plot3DFile_s& x = write("x", describeGrid(oneGrid));
    Plot3DFile_s& q1 = write("q1", solutionAt(oneGrid, 1));
    Plot3DFile_s& q2 = write("q2", solutionAt(oneGrid, 2));
    host().interruptAtStep(3 + 5 + 2);
    EXPECT_FALSE(load({step(&x, &q1), step(&x, &q2)}));
    EXPECT_EQ(state(2, 4), FieldState_e::Deferred);
    EXPECT_EQ(state(2, 5), FieldState_e::Empty);
    EXPECT_EQ(q2.stream, nullptr);
}

} // namespace
