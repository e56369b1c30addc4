// Which files go onto a data set that is there: each rule with the message that tells it.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::Layout_e;

const Texts gridOnly = {"X", "Y", "Z"};
const Texts gridAndSolution = {"X", "Y", "Z", "R", "U", "V", "W", "E"};

/// Data sets made by hand, of ordered zones of 2 x 3 x 5 points.
class Compatibility : public MacroSession {
protected:
    Compatibility() { one_.grids = {{2, 3, 5}}; }

    static Json box() { return {{"name", "Box"}, {"i", 2}, {"j", 3}, {"k", 5}}; }
    static Json boxWith(const std::string& key, const Json& value) {
        Json zone = box();
        zone[key] = value;
        return zone;
    }
    void thereIs(const Texts& variables, const std::vector<Json>& zones,
                 const std::string& plotType = "3D") {
        before_ = {
            command("dataSet",
                    Json{{"title", "Hand"}, {"variables", variables}, {"zones", Json(zones)}}),
            command("host", command("plotType", plotType))};
    }
    /// What is told of a load that leaves everything as it was.
    Texts refusalOf(const Json& load, const Commands& faults = {}) {
        Commands commands = before_;
        commands.push_back(describe("before"));
        commands.insert(commands.end(), faults.begin(), faults.end());
        commands.push_back(load);
        play(commands);
        EXPECT_EQ(last()["ok"], false);
        EXPECT_EQ(dataSet(last()), dataSet(described("before")));
        EXPECT_EQ(last()["undo"], Json::array());
        EXPECT_EQ(last()["stateChanges"], Json::array());
        return messages(last());
    }
    Texts zonesAfter(const Json& load) {
        Commands commands = before_;
        commands.push_back(load);
        play(commands);
        EXPECT_EQ(messages(last()), Texts());
        return zoneNames(last());
    }

    Json appendGrid() { return load({.grids = {one_.grid("a.x")}}, append_); }
    Json appendBoth() {
        return load({.grids = {one_.grid("a.x")}, .solutions = {one_.solution("a.q", 1)}}, append_);
    }
    Json solution(const Settings& settings = {}) {
        return load({.solutions = {one_.solution("a.q", 1)}}, settings);
    }

    SmallFiles one_{directory().path().string()};
    const Settings append_ = {{"APPEND", "Yes"}};
    Commands before_;
};

const Texts nodalCoordinates = {"Spatial variables (assumed to be the first n variables) must all "
                                "be nodal in the existing dataset."};
const Texts inconsistentIBlank = {
    "Existing dataset has inconsistent types for variable in the I-Blank position."};
const Texts wrongPlotType = {"Must be in XY,Polar,2D or 3D plot type for this operation."};

Texts spatialFault(int there, int needed) {
    return {"Not allowed to append if existing dataset does not have the same number of spatial "
            "variables (" +
            std::to_string(there) + ") as the number required by the plot3d files (" +
            std::to_string(needed) + ")."};
}

Texts variableFault(int there, int needed) {
    return {"Not allowed to load solution in existing dataset that does not have the number of "
            "variables (" +
            std::to_string(there) +
            ") equal to the number of variables retrieved from in the solution files (" +
            std::to_string(needed) + ").\nTry loading with a grid file."};
}

std::string sizeFault(int zone, int grid) {
    return "Zone " + std::to_string(zone) +
           " in quorvia does not have the same dimensions as grid " + std::to_string(grid) +
           " in the incoming plot3d source file.  These must be the same in order to replace the "
           "existing solution.";
}

TEST_F(Compatibility, FreshLoadIsAskedNothing) {
    thereIs({"old"}, {box()}, "sketch");
    EXPECT_EQ(zonesAfter(load({.grids = {one_.grid("a.x")}})), Texts{"a.x:1"});
    EXPECT_FALSE(last()["progress"].dump().find("Checking dataset compatibility") !=
                 std::string::npos);
}

TEST_F(Compatibility, SolutionAloneNeedsADataSet) {
    const Texts told = {"No dataset present in Quorvia.  Cannot load solution only plot3d files."};
    EXPECT_EQ(refusalOf(solution()), told);
    EXPECT_NE(last()["progress"].dump().find("Checking dataset compatibility"), std::string::npos);
}

TEST_F(Compatibility, NothingIsAppendedWithoutADataSet) {
    const Texts told = {"Cannot append without an existing data set."};
    EXPECT_EQ(refusalOf(appendGrid()), told);
    EXPECT_EQ(refusalOf(solution(append_)), told);
}

TEST_F(Compatibility, HostThatDoesNotTellOfItsDataSetIsNoGround) {
    thereIs(gridAndSolution, {box()});
    EXPECT_EQ(refusalOf(solution(), {command("fail", Json{{"operation", "QuorUtilDataSetGetInfo"},
                                                          {"call", 1}})}),
              Texts{"Cannot query for dataset information."});
}

TEST_F(Compatibility, PlotTypeShowsZones) {
    for (const char* plotType : {"sketch", "none"}) {
        thereIs(gridAndSolution, {box()}, plotType);
        EXPECT_EQ(refusalOf(solution()), wrongPlotType) << plotType;
        EXPECT_EQ(refusalOf(appendGrid()), wrongPlotType) << plotType;
    }
}

TEST_F(Compatibility, PlotHasItsCoordinates) {
    thereIs({"X", "Y"}, {box()});
    EXPECT_EQ(refusalOf(appendGrid()), Texts{"Not enough unique spatial vars available."});
}

TEST_F(Compatibility, CoordinatesAreNodal) {
    thereIs(gridOnly, {box(), boxWith("cellCentred", Json::array({3})), box()});
    EXPECT_EQ(refusalOf(appendGrid()), nodalCoordinates);
}

TEST_F(Compatibility, ReplacedSolutionIsNodal) {
    thereIs(gridAndSolution, {box(), boxWith("cellCentred", Json::array({7}))});
    EXPECT_EQ(refusalOf(solution()),
              Texts{"Solution variables must all be nodal in the existing dataset if replacing the "
                    "solution."});
}

TEST_F(Compatibility, SolutionInTheCellsMayBeAppendedTo) {
    thereIs(gridAndSolution, {box(), boxWith("cellCentred", Json::array({7}))});
    EXPECT_EQ(zonesAfter(appendGrid()), (Texts{"Box", "Box", "a.x:1"}));
    EXPECT_EQ(zonesAfter(solution(append_)), (Texts{"Box", "Box", "a.q:1"}));
}

class IBlankOfCompatibility : public Compatibility {
protected:
    static Json integers() {
        return boxWith("types", {"float32", "float32", "float32", "int32", "float32", "float32",
                                 "float32", "float32", "float32"});
    }
    const Texts withIBlank_ = {"X", "Y", "Z", "IBlank", "R", "U", "V", "W", "E"};
};

TEST_F(IBlankOfCompatibility, IsOfIntegersInAllZonesBehindTheFirst) {
    thereIs(withIBlank_, {box(), integers(), box()});
    EXPECT_EQ(refusalOf(solution()), inconsistentIBlank);
    thereIs(withIBlank_, {box(), integers()});
    EXPECT_EQ(zonesAfter(solution()), Texts{"a.q:1"});
}

TEST_F(IBlankOfCompatibility, MayBePassive) {
    thereIs(withIBlank_, {integers(), boxWith("passive", Json::array({4}))});
    EXPECT_EQ(zonesAfter(solution()), Texts{"a.q:1"});
}

TEST_F(IBlankOfCompatibility, CountsAmongTheVariables) {
    thereIs({"X", "Y", "Z", "A", "B", "C", "D"}, {box()});
    EXPECT_EQ(refusalOf(solution()), variableFault(7, 8));
    thereIs({"X", "Y", "Z", "A", "B", "C", "D"},
            {boxWith("types",
                     {"float32", "float32", "float32", "int32", "float32", "float32", "float32"})});
    EXPECT_EQ(refusalOf(solution()), variableFault(7, 9));
}

TEST_F(Compatibility, AppendedGridHasTheCoordinatesOfThePlot) {
    for (const char* plotType : {"2D", "XY", "polar"}) {
        thereIs(gridAndSolution, {box()}, plotType);
        EXPECT_EQ(refusalOf(appendGrid()), spatialFault(2, 3)) << plotType;
    }
    one_.layout = Layout_e::TwoD;
    one_.grids = {{2, 3, 1}};
    thereIs(gridAndSolution, {box()});
    EXPECT_EQ(refusalOf(appendGrid()), spatialFault(3, 2));
}

TEST_F(Compatibility, SolutionOfALineGoesIntoAPlaneAndItsGridDoesNot) {
    one_.layout = Layout_e::OneD;
    one_.grids = {{7, 1, 1}};
    thereIs({"X", "R", "U", "E"}, {Json{{"name", "Line"}, {"i", 7}}}, "2D");
    EXPECT_EQ(zonesAfter(solution(append_)), Texts{"a.q:1"});
    EXPECT_EQ(refusalOf(appendGrid()), spatialFault(2, 1));
}

TEST_F(Compatibility, GridAloneMakesNoDemandOnTheVariables) {
    thereIs(gridOnly, {box()});
    EXPECT_EQ(zonesAfter(appendGrid()), (Texts{"Box", "a.x:1"}));
}

TEST_F(Compatibility, GridWithASolutionNeedsItsVariables) {
    thereIs({"X", "Y", "Z", "R"}, {box()});
    EXPECT_EQ(refusalOf(appendBoth()),
              Texts{"Not allowed to append if existing dataset that has fewer number of variables "
                    "(4) than the number of variables required by the incoming grid and solution "
                    "files (8)."});
}

TEST_F(Compatibility, SolutionNeedsAZoneForEachGrid) {
    one_.grids = {{2, 3, 5}, {2, 3, 5}};
    thereIs(gridAndSolution, {box()});
    const Texts told = {
        "Not allowed to replace solution in existing dataset that has fewer number "
        "of zones (1) than the number of grids retrieved from in the solution files "
        "(2)."};
    EXPECT_EQ(refusalOf(solution()), told);
    EXPECT_EQ(refusalOf(solution(append_)), told);
}

// Its five variables and three coordinates are not the three that are there. A larger data set than
// a line's is joined by loading the grid once more.
TEST_F(Compatibility, SolutionOfAVolumeDoesNotJoinALoneGrid) {
    thereIs(gridOnly, {box()});
    EXPECT_EQ(refusalOf(solution(append_)), variableFault(3, 8));
}

TEST_F(Compatibility, LastZonesHaveTheSizesOfTheGrids) {
    const Json longer = boxWith("k", 7);
    thereIs(gridAndSolution, {longer, longer, longer, box(), box(), box()});
    one_.grids = {{2, 3, 5}, {2, 3, 5}, {2, 3, 7}};
    EXPECT_EQ(refusalOf(solution(append_)), Texts{sizeFault(6, 3)});
    one_.grids = {{2, 3, 7}, {2, 3, 5}, {2, 3, 5}};
    EXPECT_EQ(refusalOf(solution()), Texts{sizeFault(4, 1)});
}

TEST_F(Compatibility, SelectedGridIsLookedUpByItsNumberAmongTheSelected) {
    one_.grids = {{2, 3, 7}, {2, 3, 5}};
    thereIs(gridAndSolution, {box(), box()});
    EXPECT_EQ(refusalOf(solution({{"FILEGRIDSET", "2"}})), Texts{sizeFault(2, 1)});
}

TEST_F(Compatibility, BoundaryFileThatIsGoneIsNotBlamedForTheSizes) {
    one_.grids = {{2, 3, 7}};
    thereIs(gridAndSolution, {box()});
    const Texts told = refusalOf(solution({{"LOADBOUNDARY", "Yes"}}));
    EXPECT_EQ(told,
              (Texts{"The boundary file does not exist in the same directory as the grid file "
                     "and will not be loaded.This may have an effect on the dataset if "
                     "anything relies on the boundary zones.",
                     sizeFault(1, 1)}));
}

} // namespace
} // namespace quorvia::testsupport
