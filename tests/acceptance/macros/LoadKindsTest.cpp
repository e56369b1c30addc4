// The six kinds of load: what each does to the data set, and what the host and the user are told.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

class LoadKinds : public KindSession {
protected:
    void playKind(LoadKind_e kind, const std::string& plotTypeBefore = "3D") {
        play({start(kind), command("host", command("plotType", plotTypeBefore)), describe("before"),
              loadOf(kind)});
        EXPECT_EQ(exitCode_, 0);
        EXPECT_EQ(messages(last()), Texts());
    }
    /// The zones from `firstZone` on hold the two grids, and a solution with the shift.
    void expectStep(std::size_t firstZone, double shift) const {
        for (std::size_t grid = 0; grid < 2; ++grid)
            for (std::int32_t variable = 0; variable < 8; ++variable) {
                const bool isCoordinate = variable < 3;
                EXPECT_TRUE(holds(fieldOf(firstZone + grid, variable),
                                  {.dims = series_.grids[grid],
                                   .grid = static_cast<std::int32_t>(grid),
                                   .variable = isCoordinate ? variable : variable - 3,
                                   .shift = isCoordinate ? 0 : shift}))
                    << firstZone + grid << " " << variable;
            }
    }
    /// Zone from 1, variable from 0.
    const Json& fieldOf(std::size_t zone, std::int32_t variable) const {
        return last()["dataSet"]["zones"][zone - 1]["fields"][static_cast<std::size_t>(variable)];
    }
};

TEST_F(LoadKinds, FreshMakesADataSetSetsThePlotTypeAndRedrawsOnce) {
    playKind(LoadKind_e::Fresh, "sketch");
    EXPECT_EQ(stateChanges(last()), Texts());
    EXPECT_EQ(undo(last()), Texts());
    EXPECT_EQ(last()["plotType"], "3D");
    EXPECT_EQ(last()["redraws"], 1);
    EXPECT_EQ(zoneNames(last()), (Texts{"step.3.q:1", "step.3.q:2", "step.4.q:1", "step.4.q:2"}));
    expectStep(1, 50);
    expectStep(3, 70);
}

TEST_F(LoadKinds, ReplacedSolutionTellsOfItsVariablesAndKeepsTheGrid) {
    playKind(LoadKind_e::ReplaceSolution);
    EXPECT_EQ(stateChanges(last()), Texts{"0: 4 5 6 7 8"});
    EXPECT_EQ(undo(last()), Texts());
    EXPECT_EQ(last()["plotType"], "3D");
    EXPECT_EQ(last()["redraws"], 1);
    EXPECT_EQ(zoneNames(last()), (Texts{"step.3.q:1", "step.3.q:2", "step.4.q:1", "step.4.q:2"}));
    EXPECT_EQ(last()["dataSet"]["variables"], described("before")["dataSet"]["variables"]);
    expectStep(1, 50);
    expectStep(3, 70);
}

TEST_F(LoadKinds, AppendedGridTellsOfItsZonesInOneUndoState) {
    playKind(LoadKind_e::AppendGrid);
    EXPECT_EQ(stateChanges(last()), Texts{"3: 5 6 7 8"});
    EXPECT_EQ(undo(last()), (Texts{"begin", "end ok"}));
    EXPECT_EQ(last()["redraws"], 0);
    expectStep(1, 0);
    expectStep(5, 50);
    expectStep(7, 70);
}

TEST_F(LoadKinds, AppendedSolutionMakesZonesOnTheGridThatIsThere) {
    playKind(LoadKind_e::AppendSolution);
    EXPECT_EQ(stateChanges(last()), Texts{"3: 5 6 7 8"});
    EXPECT_EQ(undo(last()), (Texts{"begin", "end ok"}));
    EXPECT_EQ(last()["redraws"], 0);
    EXPECT_EQ(fieldOf(5, 0)["state"], "shared");
    expectStep(1, 0);
    expectStep(5, 50);
    expectStep(7, 70);
}

// With its grid a line's solution has four variables, so that none is added.
TEST_F(LoadKinds, SolutionAppendedToALoneGridTakesItsZones) {
    playKind(LoadKind_e::AppendToLoneGrid, "XY");
    EXPECT_EQ(stateChanges(last()), Texts{"3: 1 2"});
    EXPECT_EQ(undo(last()), (Texts{"begin", "end ok"}));
    EXPECT_EQ(last()["plotType"], "XY");
    EXPECT_EQ(last()["redraws"], 0);
    EXPECT_EQ(zoneNames(last()), (Texts{"line.3.q:1", "line.4.q:1"}));
    for (std::size_t zone : {1U, 2U})
        EXPECT_TRUE(holds(fieldOf(zone, 1), {.dims = {7, 1, 1}, .shift = zone == 1 ? 50.0 : 70.0}));
}

TEST_F(LoadKinds, AppendedFunctionsTellOfTheirVariablesWithoutAnUndoState) {
    playKind(LoadKind_e::AppendFunctions);
    EXPECT_EQ(stateChanges(last()), Texts{"1: 9 10"});
    EXPECT_EQ(undo(last()), Texts());
    EXPECT_EQ(last()["redraws"], 0);
    EXPECT_EQ(zoneNames(last()), zoneNames(described("before")));
    for (std::size_t zone = 1; zone <= 4; ++zone)
        for (std::int32_t variable : {0, 1})
            EXPECT_TRUE(holds(fieldOf(zone, 8 + variable),
                              {.dims = series_.grids[(zone - 1) % 2],
                               .grid = static_cast<std::int32_t>((zone - 1) % 2),
                               .variable = variable,
                               .shift = zone <= 2 ? 50.0 : 70.0}));
}

TEST_F(LoadKinds, NoAppendTouchesThePlotType) {
    for (const LoadKind_e kind : allLoadKinds)
        if (appends(kind)) {
            const bool isLine = kind == LoadKind_e::AppendToLoneGrid;
            const std::string before = isLine ? "2D" : "3D"; // a line's own would be XY
            playKind(kind, before);
            EXPECT_EQ(last()["plotType"], before) << nameOf(kind);
        }
}

TEST_F(LoadKinds, ReplacingSetsThePlotTypeThatTheSolutionNeeds) {
    play({command("dataSet", Json{{"title", "Hand"},
                                  {"variables", {"X", "R", "U", "E"}},
                                  {"zones", Json::array({{{"name", "Line"}, {"i", 7}}})}}),
          command("host", command("plotType", "2D")), load({.solutions = {lineSolutions_[0]}})});
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(last()["plotType"], "XY");
}

} // namespace
} // namespace quorvia::testsupport
