// Which files go onto a data set that is there: each rule with the message that tells it.
#include "loader/DatasetCompatibility.h"

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const GridList oneGrid = {{2, 3, 5}}; // like the zones of makeOldDataSet
const GridList otherSize = {{2, 3, 7}};
const Texts onlyGrid = {"X", "Y", "Z"};
const Texts gridAndSolution = {"X", "Y", "Z", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};
const Texts withIBlank = {"X", "Y", "Z", "IBlank", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

class DatasetCompatibility : public LoaderTest {
protected:
    void makeDataSet(const Texts& variables, std::int32_t zones,
                     std::int32_t plotType = QuorPlotType_3D) {
        makeOldDataSet(variables, zones);
        host().frame().setPlotType(plotType);
    }
    static host::Field_s& field(std::int32_t zone, std::int32_t var) {
        return *host().frame().dataSet()->field(zone, var);
    }
    void makeIntegers(std::int32_t zone, std::int32_t var) {
        field(zone, var) = {QuorFieldDataType_Int32, QuorValueLocation_Nodal, false, nullptr};
    }
    void useSolution(const GridList& grids, Layout_e layout = Layout_e::ThreeDWhole) {
        useFiles({}, {solutionFile("a.q", grids, 1, layout)});
    }
    void appendGrid(const GridList& grids, Layout_e layout = Layout_e::ThreeDWhole) {
        useFiles({gridFile("a.x", grids, layout)});
        options.append = true;
    }
    /// Of more variables than its bytes could hold.
    std::string absurdFunctions() const {
        return directory.write("a.fun", "1\n2 3 5 2147483640\n" + std::string(600, '1'));
    }
    /// What the user is told when the load is refused; the data set must be as it was.
    std::string refusal() {
        const Texts variables = variableNames();
        const std::int32_t zones = zoneCount();
        EXPECT_FALSE(load());
        EXPECT_EQ(variableNames(), variables);
        EXPECT_EQ(zoneCount(), zones);
        EXPECT_TRUE(host().log().stateChanges.empty());
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(messages().size(), 1U);
        return messages().empty() ? "" : messages().front();
    }
    bool passes() {
        const bool loaded = load();
        EXPECT_TRUE(loaded) << ::testing::PrintToString(messages());
        return loaded;
    }
};

TEST_F(DatasetCompatibility, IsNotAskedOfAFreshLoad) {
    makeDataSet({"old"}, 2, QuorPlotType_Sketch);
    useFiles({gridFile("a.x", oneGrid)});
    EXPECT_TRUE(passes());
    EXPECT_FALSE(showedProgress("Checking dataset compatibility"));
}

TEST_F(DatasetCompatibility, WantsADataSet) {
    const std::string none = "No dataset present in Quorvia.  Cannot load solution only plot3d "
                             "files.";
    useSolution(oneGrid);
    EXPECT_EQ(refusal(), none);
    EXPECT_TRUE(showedProgress("Checking dataset compatibility"));
    host().clearLog();
    appendGrid(oneGrid);
    EXPECT_EQ(refusal(), none);
}

TEST_F(DatasetCompatibility, WantsTheHostsAnswer) {
    makeDataSet(gridAndSolution, 1);
    useSolution(oneGrid);
    host().failCall("QuorUtilDataSetGetInfo", 1);
    EXPECT_EQ(refusal(), "Cannot query for dataset information.");
}

TEST_F(DatasetCompatibility, WantsAPlotOfZones) {
    for (const std::int32_t plotType : {QuorPlotType_Sketch, QuorPlotType_None}) {
        host().clearLog();
        makeDataSet(gridAndSolution, 1, plotType);
        useSolution(oneGrid);
        EXPECT_EQ(refusal(), "Must be in XY,Polar,2D or 3D plot type for this operation.");
    }
}

TEST_F(DatasetCompatibility, WantsTheCoordinatesOfThePlot) {
    makeDataSet({"X", "Y"}, 1);
    appendGrid(oneGrid);
    EXPECT_EQ(refusal(), "Not enough unique spatial vars available.");
}

TEST_F(DatasetCompatibility, WantsCoordinatesAtTheNodes) {
    makeDataSet(onlyGrid, 3);
    field(2, 3).location = QuorValueLocation_CellCentred;
    appendGrid(oneGrid);
    EXPECT_EQ(refusal(), "Spatial variables (assumed to be the first n variables) must all be "
                         "nodal in the existing dataset.");
}

TEST_F(DatasetCompatibility, ReplacesASolutionAtTheNodesAlone) {
    makeDataSet(gridAndSolution, 2);
    field(2, 7).location = QuorValueLocation_CellCentred;
    useSolution(oneGrid);
    EXPECT_EQ(refusal(),
              "Solution variables must all be nodal in the existing dataset if replacing "
              "the solution.");
}

TEST_F(DatasetCompatibility, AppendsToASolutionInTheCells) {
    makeDataSet(gridAndSolution, 2);
    field(2, 7).location = QuorValueLocation_CellCentred;
    appendGrid(oneGrid);
    EXPECT_TRUE(passes());
    EXPECT_EQ(zoneCount(), 3);
}

TEST_F(DatasetCompatibility, WantsIntegersInAllZonesBehindOneWithThem) {
    const std::string inconsistent =
        "Existing dataset has inconsistent types for variable in the I-Blank position.";
    makeDataSet(withIBlank, 3);
    makeIntegers(2, 4);
    useSolution(oneGrid);
    EXPECT_EQ(refusal(), inconsistent);
    host().clearLog();
    field(3, 4).passive = true;
    EXPECT_TRUE(passes());
}

TEST_F(DatasetCompatibility, DoesNotHoldEarlierZonesAgainstTheFirstWithIntegers) {
    makeDataSet(withIBlank, 2);
    makeIntegers(2, 4);
    appendGrid(oneGrid);
    EXPECT_TRUE(passes());
}

std::string spatialFault(int there, int needed) {
    return "Not allowed to append if existing dataset does not have the same number of spatial "
           "variables (" +
           std::to_string(there) + ") as the number required by the plot3d files (" +
           std::to_string(needed) + ").";
}

TEST_F(DatasetCompatibility, AppendsNo3DGridToA2DPlot) {
    for (const std::int32_t plotType : {QuorPlotType_2D, QuorPlotType_XY, QuorPlotType_Polar}) {
        host().clearLog();
        makeDataSet(gridAndSolution, 1, plotType);
        appendGrid(oneGrid);
        EXPECT_EQ(refusal(), spatialFault(2, 3));
    }
}

TEST_F(DatasetCompatibility, AppendsNo2DGridToA3DPlot) {
    makeDataSet(gridAndSolution, 1);
    appendGrid({{2, 3, 1}}, Layout_e::TwoD);
    EXPECT_EQ(refusal(), spatialFault(3, 2));
}

TEST_F(DatasetCompatibility, AppendsNo1DGridAloneToA2DPlot) {
    makeDataSet(onlyGrid, 1, QuorPlotType_XY);
    appendGrid({{7, 1, 1}}, Layout_e::OneD);
    EXPECT_EQ(refusal(), spatialFault(2, 1));
}

TEST_F(DatasetCompatibility, AppendsAGridToAnyNumberOfVariables) {
    makeDataSet(onlyGrid, 1);
    appendGrid(oneGrid);
    EXPECT_TRUE(passes());
    EXPECT_EQ(variableNames(), onlyGrid);
}

TEST_F(DatasetCompatibility, AppendsNoSolutionWithAGridToTooFewVariables) {
    makeDataSet({"X", "Y", "Z", "RHO"}, 1);
    useFiles({gridFile("a.x", oneGrid)}, {solutionFile("a.q", oneGrid, 1)});
    options.append = true;
    EXPECT_EQ(refusal(),
              "Not allowed to append if existing dataset that has fewer number of variables (4) "
              "than the number of variables required by the incoming grid and solution files (8).");
}

TEST_F(DatasetCompatibility, CountsMoreVariablesThan32Bits) {
    makeDataSet(gridAndSolution, 1);
    useFiles({gridFile("a.x", oneGrid)}, {solutionFile("a.q", oneGrid, 1)}, {absurdFunctions()});
    options.append = true;
    EXPECT_EQ(refusal(), "Not allowed to append if existing dataset that has fewer number of "
                         "variables (8) than the number of variables required by the incoming grid "
                         "and solution files (2147483648).");
}

TEST_F(DatasetCompatibility, MakesNoVariablesThatTheFileCannotHold) {
    makeDataSet(gridAndSolution, 1);
    useFiles({gridFile("a.x", oneGrid)}, {}, {absurdFunctions()});
    options.append = true;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(),
              (Texts{"The counts in the file's header do not fit the file.\nFile: " +
                         options.functionFiles.front(),
                     "Invalid Plot 3D grid file.\nFile: " + options.gridFiles.front()}));
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_EQ(zoneCount(), 1);
}

TEST_F(DatasetCompatibility, AppendsNoListOfGridsThatIsEmpty) {
    makeDataSet(gridAndSolution, 1);
    useSolution(oneGrid);
    options.hasGridFiles = true;
    options.append = true;
    EXPECT_EQ(refusal(), "The list of grid files to append is empty.");
}

TEST_F(DatasetCompatibility, WantsAZoneForEachGridOfASolution) {
    makeDataSet(gridAndSolution, 1);
    useSolution({{2, 3, 5}, {2, 3, 5}});
    const std::string fault = "Not allowed to replace solution in existing dataset that has fewer "
                              "number of zones (1) than the number of grids retrieved from in the "
                              "solution files (2).";
    EXPECT_EQ(refusal(), fault);
    host().clearLog();
    options.append = true;
    EXPECT_EQ(refusal(), fault);
}

TEST_F(DatasetCompatibility, TakesNoFunctionsThatPassForASolution) {
    makeDataSet(gridAndSolution, 1);
    useFiles({}, {functionFile("a.q", {{2, 3, 5}, {2, 3, 5}}, 2)});
    EXPECT_EQ(refusal(), "You can not load function files or solution files only. You must load "
                         "grid and solution files along with function files. ");
}

std::string variableFault(int there, int needed) {
    return "Not allowed to load solution in existing dataset that does not have the number of "
           "variables (" +
           std::to_string(there) +
           ") equal to the number of variables retrieved from in the solution files (" +
           std::to_string(needed) + ").\nTry loading with a grid file.";
}

TEST_F(DatasetCompatibility, WantsAVariableForEachOfTheSolution) {
    makeDataSet({"X", "Y", "Z", "a", "b", "c", "d"}, 1);
    useSolution(oneGrid);
    EXPECT_EQ(refusal(), variableFault(7, 8));
}

TEST_F(DatasetCompatibility, CountsTheIBlankThatIsThere) {
    makeDataSet({"X", "Y", "Z", "IBlank", "b", "c", "d"}, 1);
    makeIntegers(1, 4);
    useSolution(oneGrid);
    EXPECT_EQ(refusal(), variableFault(7, 9));
}

TEST_F(DatasetCompatibility, DoesNotAppendASolutionToALoneGridOfThreeDimensions) {
    makeDataSet(onlyGrid, 1);
    useSolution(oneGrid);
    options.append = true;
    EXPECT_EQ(refusal(), variableFault(3, 8));
}

std::string sizeFault(int zone, int grid) {
    return "Zone " + std::to_string(zone) +
           " in quorvia does not have the same dimensions as grid " + std::to_string(grid) +
           " in the incoming plot3d source file.  These must be the same in order to replace the "
           "existing solution.";
}

TEST_F(DatasetCompatibility, ComparesTheLastZones) {
    makeDataSet(gridAndSolution, 6);
    for (const std::int32_t zone : {1, 2, 3})
        host().frame().dataSet()->zone(zone)->k = 7;
    useSolution({{2, 3, 5}, {2, 3, 5}, {2, 3, 7}});
    options.append = true;
    EXPECT_EQ(refusal(), sizeFault(6, 3));
    host().clearLog();
    useSolution({{2, 3, 7}, {2, 3, 5}, {2, 3, 5}});
    EXPECT_EQ(refusal(), sizeFault(4, 1));
}

class ZonesOfElements : public DatasetCompatibility {
protected:
    /// A zone of 7 nodes, whatever the host says that it consists of.
    void makeZoneOfType(std::int32_t type, std::int64_t nodes = 7) {
        host().clearLog();
        makeDataSet(gridAndSolution, 1);
        host::Zone_s& zone = *host().frame().dataSet()->zone(1);
        zone.type = type;
        zone.i = nodes;
        zone.j = 5;
        zone.k = type == QuorZoneType_Triangles ? 3 : 4;
    }
    void useNodes(std::int32_t nodes) {
        useSolution({{nodes, 0, 0}}, Layout_e::Unstructured);
        options.autoDetect = false;
        options.isMultiGrid = true;
        options.style = Plot3DStyle_Classic;
        options.dataStructure = Plot3DDataStructure_Unstructured;
    }
};

constexpr std::int32_t otherElements = 2; // a type that PLOT3D does not know

TEST_F(ZonesOfElements, AreComparedByTheirNodesIfTheyAreTrianglesOrTetrahedra) {
    for (const std::int32_t type : {QuorZoneType_Triangles, QuorZoneType_Tetrahedra}) {
        makeZoneOfType(type);
        useNodes(11);
        EXPECT_EQ(refusal(), sizeFault(1, 1));
        makeZoneOfType(type);
        useNodes(7);
        EXPECT_TRUE(passes());
    }
}

// They pass this check, and another one looks whether the values fit.
TEST_F(ZonesOfElements, OfOtherTypesAreNotCompared) {
    makeZoneOfType(otherElements);
    useNodes(11);
    EXPECT_EQ(refusal(), "The solution file does not fit the zones that are there.\nFile: " +
                             options.solutionFiles.front());
}

TEST_F(ZonesOfElements, OfOtherTypesDoNotGiveTheirsToNewZones) {
    for (const std::int32_t type : {otherElements, std::int32_t{QuorZoneType_Ordered}}) {
        makeZoneOfType(type);
        useNodes(7);
        options.append = true;
        EXPECT_FALSE(load());
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(
            messages(),
            (Texts{"Zone 1 has neither triangles nor tetrahedra that a zone of an "
                   "unstructured solution could have.",
                   "Invalid Plot 3D solution file.\nFile: " + options.solutionFiles.front()}));
        EXPECT_EQ(zoneCount(), 1);
    }
}

TEST_F(ZonesOfElements, OfOtherTypesAreLeftByAReplacementThatWouldAddZones) {
    makeZoneOfType(otherElements);
    const std::string name = host().frame().dataSet()->zone(1)->name;
    useNodes(7);
    options.solutionFiles.push_back(solutionFile("b.q", {{7, 0, 0}}, 2, Layout_e::Unstructured));
    EXPECT_FALSE(load());
    EXPECT_EQ(messages().size(), 2U);
    EXPECT_EQ(messages().back(),
              "Invalid Plot 3D solution file.\nFile: " + options.solutionFiles.back());
    EXPECT_EQ(host().frame().dataSet()->zone(1)->name, name);
}

TEST_F(DatasetCompatibility, LooksSizesUpByTheNumberAmongTheSelected) {
    makeDataSet(gridAndSolution, 2);
    useSolution({{2, 3, 7}, {2, 3, 5}});
    selectGrids({2});
    EXPECT_EQ(refusal(), sizeFault(2, 1));
}

TEST_F(DatasetCompatibility, DoesNotWarnOfBoundaryZonesWithoutABoundaryFile) {
    makeDataSet(gridAndSolution, 1);
    useSolution(otherSize);
    options.loadBoundary = true;
    EXPECT_FALSE(load()); // the boundary file is looked for beside a grid file and not found
    EXPECT_EQ(messages().back(), sizeFault(1, 1));
}

// No instructions and no dialog name a grid file without the flag.
TEST_F(DatasetCompatibility, WarnsOfBoundaryZonesWhereSizesDiffer) {
    makeDataSet(gridAndSolution, 1);
    useFiles({gridFile("a.x", otherSize)}, {solutionFile("a.q", otherSize, 1)});
    options.hasGridFiles = false;
    directory.write("a.x.fvbnd", "FVBND 1 4\nBOUNDARIES\n");
    options.loadBoundary = true;
    EXPECT_EQ(refusal(), sizeFault(1, 1) +
                             "\nThe existence of boundary zones will not allow appending. Please "
                             "remove the boundary file or load all files at the same time.");
}

} // namespace
} // namespace quorvia::testsupport
