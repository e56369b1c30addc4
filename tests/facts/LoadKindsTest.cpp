// Fresh loads, replaced solutions, appended grids and solutions. Functions have a file of their
// own.
#include "LoadKinds.h"

namespace quorvia::testsupport {
namespace {

// ---- Fresh, and replaced ------------------------------------------------------------------------

TEST_F(LoadKinds, FreshMakesADataSetSetsThePlotTypeAndRedrawsOnce) {
    begin(gridAndSolutions({1, 2}));
    setPlotType(QuorPlotType_Sketch);
    expectLoads(gridAndSolutions({3, 4}));
    EXPECT_EQ(told(), (Told_s{{}, {}, 1}));
    EXPECT_EQ(plotType(), QuorPlotType_3D);
    EXPECT_EQ(zoneNames(), (Texts{"s.3.q:1", "s.3.q:2", "s.4.q:1", "s.4.q:2"}));
    expectStep(1, 3);
    expectStep(3, 4);
}

TEST_F(LoadKinds, ReplacedSolutionTellsOfItsVariablesAndKeepsTheGrid) {
    begin(gridAndSolutions({1, 2}));
    expectLoads(solutions({3, 4}));
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_VarsAltered, {4, 5, 6, 7, 8}}}, {}, 1}));
    EXPECT_EQ(plotType(), QuorPlotType_3D);
    EXPECT_EQ(zoneNames(), (Texts{"s.3.q:1", "s.3.q:2", "s.4.q:1", "s.4.q:2"}));
    EXPECT_EQ(variableNames(), gridAndSolution);
    expectStep(1, 3);
    expectStep(3, 4);
}

TEST_F(LoadKinds, ReplacedSeriesKeepsTheFirstStepsGridAndAddsTheOthers) {
    begin(gridAndSolutions({1, 2}));
    expectLoads(solutions({3, 4, 5}));
    EXPECT_TRUE(showedProgress("Adjusting existing zones"));
    EXPECT_EQ(zoneNames(),
              (Texts{"s.3.q:1", "s.3.q:2", "s.4.q:1", "s.4.q:2", "s.5.q:1", "s.5.q:2"}));
    for (const int step : {0, 1, 2})
        expectStep(1 + 2 * step, 3 + step);
}

TEST_F(LoadKinds, ReplacedWithoutSharingCopiesTheGrid) {
    host().settings().sharingAllowed = false;
    begin(gridAndSolutions({1}));
    expectLoads(solutions({3, 4}));
    EXPECT_EQ(holder(3, 1), 3);
    expectStep(1, 3);
    expectStep(3, 4);
}

TEST_F(LoadKinds, ReplacedTakesTheSolutionOfASubset) {
    const Settings subset = {{"FILEGRIDSET", "1"}, {"KINDEXRANGE", "2,,2"}};
    begin(gridAndSolutions({1}, subset));
    expectLoads(solutions({2}, subset));
    const Numbers density = values(1, 4);
    ASSERT_EQ(density.size(), 2U * 3 * 3); // 2, 4 and the last
    EXPECT_EQ(density.front(), placeValue(0, 0, 0, 0, 1) + shiftOf(2));
    EXPECT_EQ(density.back(), placeValue(0, 0, 1, 2, 4) + shiftOf(2));
}

TEST_F(LoadKinds, ReplacedSetsThePlotTypeThatTheSolutionNeeds) {
    QuorUtilLockOn();
    makeDataSet({"X", "R", "U", "E"});
    makeZone(7, 1, 1);
    QuorUtilLockOff();
    setPlotType(QuorPlotType_2D);
    expectLoads(lineSolutions({1}));
    EXPECT_EQ(plotType(), QuorPlotType_XY);
}

// ---- Appended grids -----------------------------------------------------------------------------

TEST_F(LoadKinds, AppendedGridTellsOfItsZonesInOneUndoState) {
    begin(gridAndSolutions({1, 2}));
    expectLoads(appended(gridAndSolutions({3, 4})));
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {5, 6, 7, 8}}}, {true}, 0}));
    EXPECT_EQ(host().log().undo.front().category, 9);
    EXPECT_EQ(host().log().autoStyledZones, (std::vector<Members>{{5, 6, 7, 8}}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2, 3, 4, 3, 4}));
    expectStep(1, 1);
    expectStep(3, 2);
    expectStep(5, 3);
    expectStep(7, 4);
}

TEST_F(LoadKinds, AppendedPlaneLeavesThePlotTypeAndIsStyledInPlotsOfTwoDimensionsAlone) {
    for (const auto& [type, styled] : {std::pair<std::int32_t, std::size_t>{QuorPlotType_2D, 1},
                                       {QuorPlotType_XY, 0},
                                       {QuorPlotType_Polar, 0}}) {
        begin({.gridFiles = {planes_.grid("a.x")}});
        setPlotType(type);
        expectLoads(appended({.gridFiles = {planes_.grid("b.x")}}));
        EXPECT_EQ(plotType(), type);
        EXPECT_EQ(host().log().autoStyledZones, std::vector<Members>(styled, {2})) << type;
    }
}

TEST_F(LoadKinds, AppendedGridWithIBlankAddsTheVariableToTheOldZones) {
    begin({.gridFiles = {files_.grid("a.x")}});
    constexpr bool hasIBlank = true;
    expectLoads(appended({.gridFiles = {files_.grid("b.x", hasIBlank)}}));
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "IBlank"}));
    EXPECT_EQ(told(),
              (Told_s{{{QuorStateChange_VarsAdded, {4}}, {QuorStateChange_ZonesAdded, {3, 4}}},
                      {true},
                      0}));
    EXPECT_EQ(fieldType(1, 4), QuorFieldDataType_Float);
    EXPECT_EQ(fieldType(3, 4), QuorFieldDataType_Int32);
}

// ---- Appended solutions -------------------------------------------------------------------------

TEST_F(LoadKinds, AppendedSolutionMakesZonesOnTheGridThatIsThere) {
    begin(gridAndSolutions({1, 2}));
    expectLoads(appended(solutions({3, 4})));
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {5, 6, 7, 8}}}, {true}, 0}));
    EXPECT_EQ(plotType(), QuorPlotType_3D);
    EXPECT_EQ(zoneNames(), (Texts{"s.1.q:1", "s.1.q:2", "s.2.q:1", "s.2.q:2", "s.3.q:1", "s.3.q:2",
                                  "s.4.q:1", "s.4.q:2"}));
    for (const std::int32_t step : {0, 1, 2, 3}) {
        EXPECT_EQ(holder(1 + 2 * step, 1), 1);
        expectStep(1 + 2 * step, 1 + step);
    }
}

// With its grid a line's solution has four variables, so that none is added.
TEST_F(LoadKinds, SolutionAppendedToALoneGridTakesItsZones) {
    begin(lineAt(1));
    ASSERT_EQ(variableNames().size(), 4U);
    expectLoads(appended(lineSolutions({3, 4})));
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {1, 2}}}, {true}, 0}));
    EXPECT_EQ(zoneNames(), (Texts{"s.3.q:1", "s.4.q:1"}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{2, 2}));
    EXPECT_EQ(values(1, 2).back(), 6 + shiftOf(3));
    EXPECT_EQ(values(2, 2).back(), 6 + shiftOf(4));
}

TEST_F(LoadKinds, SolutionAppendedToALoneGridLeavesThePlotType) {
    for (const std::int32_t type : {QuorPlotType_XY, QuorPlotType_2D}) {
        begin(lineAt(1));
        setPlotType(type);
        expectLoads(appended(lineSolutions({2})));
        EXPECT_EQ(plotType(), type);
    }
}

TEST_F(LoadKinds, SolutionAppendedToALoneGridRewritesNoValuesInTheCells) {
    begin(lineAt(1));
    dataSet().field(1, 4)->location = QuorValueLocation_CellCentred;
    EXPECT_FALSE(load(appended(lineSolutions({2}))).ok);
    EXPECT_EQ(messages(), Texts{"Solution variables must all be nodal in the existing dataset if "
                                "replacing the solution."});
}

} // namespace
} // namespace quorvia::testsupport
