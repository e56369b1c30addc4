// One time step, and which of its files answers.
#include "StructureTest.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {
namespace {

class FileHandler : public StructureTest {
protected:
    FileHandler() {
        name(grid, "dir/wing.x");
        grid.dataStructure = Plot3DDataStructure_3DPlanes;
        grid.numGrids = 2;
        grid.numVars = 3;
        grid.numSpecies = 7;
        grid.gridDims = {{2, 3, 5}, {7, 11, 13}};
        name(solution, "dir/wing.q");
        solution.dataStructure = Plot3DDataStructure_2D;
        solution.style = Plot3DStyle_Swift;
        solution.numGrids = 3;
        solution.numSpecies = 11;
        solution.gridDims = {{17, 19, 1}};
        solution.solutionTime = 0.25;
        name(function, "dir/wing.fun");
        function.dataStructure = Plot3DDataStructure_1D;
        function.style = Plot3DStyle_Function;
        function.numGrids = 5;
        function.gridDims = {{23, 1, 1}};
        function.solutionTime = 0.5;
    }

    static void name(Plot3DFile_s& file, const char* path) {
        file.fileName = HostString::copyOf(path);
    }

    Plot3DFile_s grid;
    Plot3DFile_s solution;
    Plot3DFile_s function;
    Plot3DFile_s otherFunction;
};

TEST_F(FileHandler, AsksTheGridFileForTheStructure) {
    const Plot3DFileHandler all(&grid, &solution, {&function});
    EXPECT_EQ(all.getDataStructure(), Plot3DDataStructure_3DPlanes);
    EXPECT_EQ(all.getNumGrids(), 2);
    const Plot3DFileHandler noGrid(nullptr, &solution, {&function});
    EXPECT_EQ(noGrid.getDataStructure(), Plot3DDataStructure_2D);
    EXPECT_EQ(noGrid.getNumGrids(), 3);
}

TEST_F(FileHandler, AsksTheFirstFunctionFileIfThereIsNoOther) {
    const Plot3DFileHandler step(nullptr, nullptr, {&function, &otherFunction});
    EXPECT_EQ(step.getDataStructure(), Plot3DDataStructure_1D);
    EXPECT_EQ(step.getNumGrids(), 5);
    EXPECT_EQ(step.getStyle(), Plot3DStyle_Function);
    EXPECT_EQ(step.getGridDims(0), (Plot3DGridDims_s{0, 0, 0}));
}

TEST_F(FileHandler, AsksTheSolutionFileForTheStyle) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {&function}).getStyle(), Plot3DStyle_Swift);
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {&function}).getStyle(), Plot3DStyle_Function);
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {}).getStyle(), Plot3DStyle_Unknown);
}

TEST_F(FileHandler, AsksTheSolutionFileForTheSpeciesAndElseTheGridFile) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {}).getNumSpecies(), 11);
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {&function}).getNumSpecies(), 7);
}

TEST_F(FileHandler, AsksTheGridFileForDimensionsAndElseTheSolutionFile) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {}).getGridDims(1),
              (Plot3DGridDims_s{7, 11, 13}));
    EXPECT_EQ(Plot3DFileHandler(nullptr, &solution, {}).getGridDims(0),
              (Plot3DGridDims_s{17, 19, 1}));
}

TEST_F(FileHandler, CountsVariablesOfTheGridFileFirstForPrecision) {
    grid.isDoublePrecision = true;
    const Plot3DFileHandler step(&grid, &solution, {});
    EXPECT_TRUE(step.isVarDoublePrecision(2));
    EXPECT_FALSE(step.isVarDoublePrecision(3));
    grid.hasIBlank = true;
    EXPECT_TRUE(step.isVarDoublePrecision(3));
    EXPECT_FALSE(step.isVarDoublePrecision(4));
}

TEST_F(FileHandler, TakesThePrecisionOfTheOnlyFile) {
    solution.isDoublePrecision = true;
    EXPECT_TRUE(Plot3DFileHandler(nullptr, &solution, {}).isVarDoublePrecision(0));
    EXPECT_FALSE(Plot3DFileHandler(&grid, nullptr, {&function}).isVarDoublePrecision(99));
}

TEST_F(FileHandler, KnowsWhichFilesItHas) {
    const Plot3DFileHandler step(&grid, nullptr, {&function});
    EXPECT_TRUE(step.hasGridFile());
    EXPECT_FALSE(step.hasSolutionFile());
    EXPECT_TRUE(step.hasFunctionFiles());
    EXPECT_FALSE(Plot3DFileHandler(nullptr, &solution, {}).hasFunctionFiles());
}

TEST_F(FileHandler, TakesTheTimeOfTheSolutionFileAndElseOfTheFirstFunctionFile) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {&function}).getSolutionTime(), 0.25);
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {&function}).getSolutionTime(), 0.5);
}

TEST_F(FileHandler, CountsTimesOfAGridFileAloneEachCopyByItself) {
    Plot3DFileHandler step(&grid, nullptr, {});
    EXPECT_EQ(step.getSolutionTime(), 0.0);
    EXPECT_EQ(step.getSolutionTime(), 1.0);
    Plot3DFileHandler copy = step;
    EXPECT_EQ(copy.getSolutionTime(), 2.0);
    EXPECT_EQ(copy.getSolutionTime(), 3.0);
    EXPECT_EQ(step.getSolutionTime(), 2.0);
}

TEST_F(FileHandler, NamesZonesByTheSolutionFile) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {&function}).getZoneName(0), "wing.q:1");
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {&function}).getZoneName(1), "wing.fun:2");
    EXPECT_EQ(Plot3DFileHandler(&grid, nullptr, {}).getZoneName(2), "wing.x:3");
    EXPECT_EQ(Plot3DFileHandler(nullptr, nullptr, {}).getZoneName(0), ":1");
}

TEST_F(FileHandler, CutsTheNameBehindItsLastSeparatorButNotTheFirstCharacter) {
    const std::pair<const char*, const char*> names[] = {
        {"dir/wing.q", "wing.q:1"}, {"C:wing.q", "wing.q:1"}, {"dir\\a/b.q", "b.q:1"},
        {"a/b\\c.q", "c.q:1"},      {"wing.q", "wing.q:1"},   {"/wing.q", "/wing.q:1"},
        {":wing.q", ":wing.q:1"},   {"dir/", ":1"},           {"", ":1"},
    };
    const Plot3DFileHandler step(nullptr, &solution, {});
    for (const auto& [path, zoneName] : names) {
        name(solution, path);
        EXPECT_EQ(step.getZoneName(0), zoneName);
    }
}

TEST_F(FileHandler, GivesNamesOfFilesAndEmptyOnesForThoseItLacks) {
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {}).getGridFileName(), "dir/wing.x");
    EXPECT_EQ(Plot3DFileHandler(&grid, &solution, {}).getSolutionFileName(), "dir/wing.q");
    EXPECT_EQ(Plot3DFileHandler(nullptr, nullptr, {}).getGridFileName(), "");
    EXPECT_EQ(Plot3DFileHandler(nullptr, nullptr, {}).getSolutionFileName(), "");
}

} // namespace
} // namespace quorvia::quorutildataio
