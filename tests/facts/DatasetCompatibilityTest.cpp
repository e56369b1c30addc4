// Which files go onto a data set that is there: each rule with the message that tells it.
#include "DatasetCompatibility.h"

namespace quorvia::testsupport {
namespace {

const Texts onlyGrid = {"X", "Y", "Z"};
const Texts withIBlank = {"X", "Y", "Z", "IBlank", "RHO", "RHO-U", "RHO-V", "RHO-W", "E"};

TEST_F(DatasetCompatibility, IsNotAskedOfAFreshLoad) {
    thereAre(2, {"old"}, QuorPlotType_Sketch);
    EXPECT_EQ(zonesAfter({.gridFiles = {files_.grid("a.x")}}), Texts{"a.x:1"});
    EXPECT_FALSE(showedProgress("Checking dataset compatibility"));
}

TEST_F(DatasetCompatibility, WantsADataSet) {
    EXPECT_EQ(refusalOf(solution()), Texts{"No dataset present in Quorvia.  Cannot load solution "
                                           "only plot3d files."});
    EXPECT_TRUE(showedProgress("Checking dataset compatibility"));
}

TEST_F(DatasetCompatibility, WantsADataSetToAppendTo) {
    const Texts told = {"Cannot append without an existing data set."};
    EXPECT_EQ(refusalOf(appendedGrid()), told);
    EXPECT_EQ(refusalOf(solution(onto)), told);
}

TEST_F(DatasetCompatibility, WantsTheHostsAnswer) {
    thereAre(1, gridAndSolution);
    const Load_s load = solution();
    host().failCall("QuorUtilDataSetGetInfo", 1);
    EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages(), Texts{"Cannot query for dataset information."});
    EXPECT_EQ(zoneNames(), Texts{"old"});
}

TEST_F(DatasetCompatibility, WantsAPlotOfZones) {
    const Texts told = {"Must be in XY,Polar,2D or 3D plot type for this operation."};
    for (const std::int32_t plotType : {QuorPlotType_Sketch, QuorPlotType_None}) {
        thereAre(1, gridAndSolution, plotType);
        EXPECT_EQ(refusalOf(solution()), told) << plotType;
        EXPECT_EQ(refusalOf(appendedGrid()), told) << plotType;
    }
}

TEST_F(DatasetCompatibility, WantsTheCoordinatesOfThePlot) {
    thereAre(1, {"X", "Y"});
    EXPECT_EQ(refusalOf(appendedGrid()), Texts{"Not enough unique spatial vars available."});
}

TEST_F(DatasetCompatibility, WantsCoordinatesAtTheNodes) {
    thereAre(3, onlyGrid);
    makeCellCentred(2, 3);
    EXPECT_EQ(refusalOf(appendedGrid()),
              Texts{"Spatial variables (assumed to be the first n variables) must all be nodal in "
                    "the existing dataset."});
}

TEST_F(DatasetCompatibility, ReplacesASolutionAtTheNodesAlone) {
    thereAre(2, gridAndSolution);
    makeCellCentred(2, 7);
    EXPECT_EQ(refusalOf(solution()),
              Texts{"Solution variables must all be nodal in the existing dataset if replacing the "
                    "solution."});
}

TEST_F(DatasetCompatibility, AppendsToASolutionInTheCells) {
    for (const bool hasGrid : {true, false}) {
        thereAre(2, gridAndSolution);
        makeCellCentred(2, 7);
        EXPECT_EQ(zonesAfter(hasGrid ? appendedGrid() : solution(onto)),
                  (Texts{"old", "old", hasGrid ? "a.x:1" : "a.q:1"}));
    }
}

TEST_F(DatasetCompatibility, WantsIntegersInAllZonesBehindOneWithThem) {
    thereAre(3, withIBlank);
    makeIntegers(2, 4);
    EXPECT_EQ(
        refusalOf(solution()),
        Texts{"Existing dataset has inconsistent types for variable in the I-Blank position."});
}

TEST_F(DatasetCompatibility, TakesPassiveFieldsForIntegersBehindOneWithThem) {
    thereAre(2, withIBlank);
    makeIntegers(1, 4);
    fieldThere(2, 4).passive = true;
    EXPECT_EQ(zonesAfter(solution()), Texts{"a.q:1"});
}

TEST_F(DatasetCompatibility, DoesNotHoldEarlierZonesAgainstTheFirstWithIntegers) {
    for (const bool hasGrid : {true, false}) {
        thereAre(2, withIBlank);
        makeIntegers(2, 4);
        EXPECT_EQ(zonesAfter(hasGrid ? appendedGrid() : solution()),
                  hasGrid ? (Texts{"old", "old", "a.x:1"}) : Texts{"a.q:1"});
    }
}

Texts spatialFault(int there, int needed) {
    return {"Not allowed to append if existing dataset does not have the same number of spatial "
            "variables (" +
            std::to_string(there) + ") as the number required by the plot3d files (" +
            std::to_string(needed) + ")."};
}

TEST_F(DatasetCompatibility, AppendsNo3DGridToA2DPlot) {
    for (const std::int32_t plotType : {QuorPlotType_2D, QuorPlotType_XY, QuorPlotType_Polar}) {
        thereAre(1, gridAndSolution, plotType);
        EXPECT_EQ(refusalOf(appendedGrid()), spatialFault(2, 3)) << plotType;
    }
}

TEST_F(DatasetCompatibility, AppendsNo2DGridToA3DPlot) {
    files_.layout = Layout_e::TwoD;
    files_.grids = {{2, 3, 1}};
    thereAre(1, gridAndSolution);
    EXPECT_EQ(refusalOf(appendedGrid()), spatialFault(3, 2));
}

class LineOfCompatibility : public DatasetCompatibility {
protected:
    LineOfCompatibility() {
        files_.layout = Layout_e::OneD;
        files_.grids = {{7, 1, 1}};
    }
};

TEST_F(LineOfCompatibility, IsNotAppendedAloneToAPlane) {
    for (const std::int32_t plotType : {QuorPlotType_XY, QuorPlotType_2D}) {
        thereAre(1, onlyGrid, plotType);
        EXPECT_EQ(refusalOf(appendedGrid()), spatialFault(2, 1)) << plotType;
    }
}

TEST_F(LineOfCompatibility, BringsItsSolutionIntoAPlane) {
    thereAre(0, {"X", "R", "U", "E"}, QuorPlotType_2D);
    QuorUtilLockOn();
    makeZone(7, 1, 1);
    QuorUtilLockOff();
    EXPECT_EQ(zonesAfter(solution(onto)), Texts{"a.q:1"});
}

TEST_F(DatasetCompatibility, AppendsAGridToAnyNumberOfVariables) {
    thereAre(1, onlyGrid);
    EXPECT_EQ(zonesAfter(appendedGrid()), (Texts{"old", "a.x:1"}));
    EXPECT_EQ(variableNames(), onlyGrid);
}

Texts tooFewVariables(const std::string& there, const std::string& needed) {
    return {"Not allowed to append if existing dataset that has fewer number of variables (" +
            there +
            ") than the number of variables required by the incoming grid and solution "
            "files (" +
            needed + ")."};
}

TEST_F(DatasetCompatibility, AppendsNoSolutionWithAGridToTooFewVariables) {
    thereAre(1, {"X", "Y", "Z", "RHO"});
    EXPECT_EQ(refusalOf(appendedGridAndSolution()), tooFewVariables("4", "8"));
}

TEST_F(DatasetCompatibility, CountsMoreVariablesThan32Bits) {
    thereAre(1, gridAndSolution);
    Load_s load = appendedGridAndSolution();
    load.functionFiles = {absurdFunctions()};
    EXPECT_EQ(refusalOf(load), tooFewVariables("8", "2147483648"));
}

TEST_F(DatasetCompatibility, MakesNoVariablesThatTheFileCannotHold) {
    thereAre(1, gridAndSolution);
    Load_s load = appendedGrid();
    load.functionFiles = {absurdFunctions()};
    EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages(), (Texts{"The counts in the file's header do not fit the file.\nFile: " +
                                     load.functionFiles.front(),
                                 "Invalid Plot 3D grid file.\nFile: " + load.gridFiles.front()}));
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_EQ(zoneNames(), Texts{"old"});
}

TEST_F(DatasetCompatibility, WantsAZoneForEachGridOfASolution) {
    files_.grids = {{2, 3, 5}, {2, 3, 5}};
    thereAre(1, gridAndSolution);
    const Texts told = {"Not allowed to replace solution in existing dataset that has fewer number "
                        "of zones (1) than the number of grids retrieved from in the solution "
                        "files (2)."};
    EXPECT_EQ(refusalOf(solution()), told);
    EXPECT_EQ(refusalOf(solution(onto)), told);
}

TEST_F(DatasetCompatibility, TakesNoFunctionsThatPassForASolution) {
    files_.grids = {{2, 3, 5}, {2, 3, 5}};
    thereAre(1, gridAndSolution);
    EXPECT_EQ(refusalOf({.solutionFiles = {files_.function("a.q", 2)}}),
              Texts{"You can not load function files or solution files only. You must load grid "
                    "and solution files along with function files. "});
}

Texts variableFault(int there, int needed) {
    return {"Not allowed to load solution in existing dataset that does not have the number of "
            "variables (" +
            std::to_string(there) +
            ") equal to the number of variables retrieved from in the solution files (" +
            std::to_string(needed) + ").\nTry loading with a grid file."};
}

TEST_F(DatasetCompatibility, WantsAVariableForEachOfTheSolution) {
    thereAre(1, {"X", "Y", "Z", "a", "b", "c", "d"});
    EXPECT_EQ(refusalOf(solution()), variableFault(7, 8));
}

TEST_F(DatasetCompatibility, CountsTheIBlankThatIsThere) {
    thereAre(1, {"X", "Y", "Z", "IBlank", "b", "c", "d"});
    makeIntegers(1, 4);
    EXPECT_EQ(refusalOf(solution()), variableFault(7, 9));
}

// Its five variables and three coordinates are not the three that are there. A larger data set than
// a line's is joined by loading the grid once more.
TEST_F(DatasetCompatibility, DoesNotAppendASolutionToALoneGridOfThreeDimensions) {
    thereAre(1, onlyGrid);
    EXPECT_EQ(refusalOf(solution(onto)), variableFault(3, 8));
}

TEST_F(DatasetCompatibility, ComparesTheLastZones) {
    thereAre(0, gridAndSolution);
    QuorUtilLockOn();
    for (const std::int32_t k : {7, 7, 7, 5, 5, 5})
        makeZone(2, 3, k);
    QuorUtilLockOff();
    files_.grids = {{2, 3, 5}, {2, 3, 5}, {2, 3, 7}};
    EXPECT_EQ(refusalOf(solution(onto)), Texts{sizeFault(6, 3)});
    files_.grids = {{2, 3, 7}, {2, 3, 5}, {2, 3, 5}};
    EXPECT_EQ(refusalOf(solution()), Texts{sizeFault(4, 1)});
}

TEST_F(DatasetCompatibility, LooksSizesUpByTheNumberAmongTheSelected) {
    files_.grids = {{2, 3, 7}, {2, 3, 5}};
    thereAre(2, gridAndSolution);
    EXPECT_EQ(refusalOf(solution({{"FILEGRIDSET", "2"}})), Texts{sizeFault(2, 1)});
}

TEST_F(DatasetCompatibility, DoesNotWarnOfBoundaryZonesWithoutABoundaryFile) {
    files_.grids = {{2, 3, 7}};
    thereAre(1, gridAndSolution);
    EXPECT_EQ(refusalOf(solution({{"LOADBOUNDARY", "Yes"}})),
              (Texts{"The boundary file does not exist in the same directory as the grid file and "
                     "will not be loaded.This may have an effect on the dataset if anything relies "
                     "on the boundary zones.",
                     sizeFault(1, 1)}));
}

} // namespace
} // namespace quorvia::testsupport
