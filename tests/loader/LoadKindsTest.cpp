// The six kinds of load: what each does to the data set, and what it tells the host and the user.
#include <algorithm>

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

using namespace quorutildataio;

const GridList onePlane = {{5, 7, 1}};
const GridList oneLine = {{7, 1, 1}};

/// What a load told: state changes by code, undo states as they ended, and the screen.
struct Told_s {
    std::vector<std::pair<std::int32_t, Members>> changes;
    std::vector<bool> undo;
    std::int64_t redraws;

    bool operator==(const Told_s&) const = default;
};

class LoadKinds : public LoaderTest {
protected:
    void begin() {
        releaseLoadOptions(options);
        setLoadOptionDefaults(options);
        host().clearLog();
    }
    /// A fresh load of two grids with a solution at time 1.
    void loadFirst() {
        useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
        begin();
    }
    void loadFirstGridAlone() {
        useFiles({gridFile("a.x", twoGrids)});
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
        begin();
    }
    void loadFirstPlane() {
        useFiles({gridFile("a.x", onePlane, Layout_e::TwoD)});
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
        begin();
    }
    /// With a solution at time 1.
    void loadFirstLine() {
        useFiles({gridFile("a.x", oneLine, Layout_e::OneD)},
                 {solutionFile("a.q", oneLine, 1, Layout_e::OneD)});
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
        begin();
    }
    void appendFiles(const Texts& grids, const Texts& solutions, const Texts& functions = {}) {
        useFiles(grids, solutions, functions);
        options.append = true;
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    }
    /// Every value 50 above that of solutionFile's.
    std::string otherSolution(const std::string& name, double time) {
        const double old = valueShift;
        valueShift = 50;
        std::string file = solutionFile(name, twoGrids, time);
        valueShift = old;
        return file;
    }
    static Told_s told() {
        Told_s all{{}, {}, host().log().redraws};
        for (const host::StateChange_s& change : host().log().stateChanges)
            all.changes.emplace_back(change.code, change.members);
        for (const host::UndoEvent_s& event : host().log().undo)
            if (event.kind == host::UndoKind_e::End)
                all.undo.push_back(event.success.value());
        return all;
    }
    static std::int32_t plotType() { return host().frame().plotType(); }
    static void checkField(std::int32_t zone, std::int32_t var, std::int32_t grid,
                           std::int32_t fileVar, double shift) {
        const host::FetchResult_s field = host().fetch(zone, var);
        ASSERT_TRUE(field.ok) << zone << " " << var << " " << field.error;
        const auto* values = static_cast<const float*>(field.values);
        const GridDims_s& dims = twoGrids[static_cast<std::size_t>(grid)];
        ASSERT_EQ(field.count, std::int64_t{dims.i} * dims.j * dims.k);
        for (std::int32_t k = 0; k < dims.k; ++k)
            for (std::int32_t j = 0; j < dims.j; ++j)
                for (std::int32_t i = 0; i < dims.i; ++i)
                    ASSERT_EQ(*values++, placeValue(grid, fileVar, i, j, k) + shift)
                        << zone << " " << var;
    }
    /// The zones from `firstZone` on hold the grids, and a solution whose values are shifted.
    static void checkStep(std::int32_t firstZone, double shift) {
        for (std::int32_t grid = 0; grid < 2; ++grid) {
            for (std::int32_t var = 0; var < 3; ++var)
                checkField(firstZone + grid, 1 + var, grid, var, 0);
            for (std::int32_t var = 0; var < 5; ++var)
                checkField(firstZone + grid, 4 + var, grid, var, shift);
        }
    }
    static void checkFunctions(std::int32_t firstZone, std::int32_t firstVar,
                               std::int32_t varCount) {
        for (std::int32_t grid = 0; grid < 2; ++grid)
            for (std::int32_t var = 0; var < varCount; ++var)
                checkField(firstZone + grid, firstVar + var, grid, var, 0);
    }
};

TEST_F(LoadKinds, FreshMakesADataSet) {
    useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
    ASSERT_TRUE(load());
    EXPECT_EQ(told(), (Told_s{{}, {}, 1}));
    EXPECT_EQ(plotType(), QuorPlotType_3D);
    checkStep(1, 0);
}

TEST_F(LoadKinds, ReplacingPutsNewValuesInThePlaceOfTheOld) {
    loadFirst();
    checkStep(1, 0);
    host().frame().setPlotType(QuorPlotType_3D);
    useFiles({}, {otherSolution("b.q", 2)});
    ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_VarsAltered, {4, 5, 6, 7, 8}}}, {}, 1}));
    EXPECT_EQ(zoneNames(), (Texts{"b.q:1", "b.q:2"}));
    EXPECT_EQ(variableNames(), gridAndSolution);
    checkStep(1, 50);
}

TEST_F(LoadKinds, ReplacingASeriesKeepsTheFirstStepsGridAndAddsTheOthers) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 1), solutionFile("b.q", twoGrids, 2)});
    ASSERT_TRUE(load());
    begin();
    useFiles({}, {otherSolution("c.q", 3), otherSolution("d.q", 4), otherSolution("e.q", 5)});
    ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_TRUE(showedProgress("Adjusting existing zones"));
    EXPECT_EQ(zoneNames(), (Texts{"c.q:1", "c.q:2", "d.q:1", "d.q:2", "e.q:1", "e.q:2"}));
    for (const std::int32_t zone : {1, 3, 5})
        checkStep(zone, 50);
}

TEST_F(LoadKinds, ReplacingWithoutSharingCopiesTheGrid) {
    host().settings().sharingAllowed = false;
    loadFirst();
    useFiles({}, {otherSolution("b.q", 2), otherSolution("c.q", 3)});
    ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    checkStep(1, 50);
    checkStep(3, 50);
}

TEST_F(LoadKinds, ReplacingTakesTheSolutionOfASubset) {
    useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
    selectGrids({1});
    options.kRange = {2, 0, 2}; // 2, 4 and the last
    ASSERT_TRUE(load());
    begin();
    useFiles({}, {otherSolution("b.q", 2)});
    selectGrids({1});
    options.kRange = {2, 0, 2};
    ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
    const host::FetchResult_s field = host().fetch(1, 4);
    ASSERT_TRUE(field.ok);
    ASSERT_EQ(field.count, 2 * 3 * 3);
    EXPECT_EQ(static_cast<const float*>(field.values)[0], placeValue(0, 0, 0, 0, 1) + 50);
    EXPECT_EQ(static_cast<const float*>(field.values)[17], placeValue(0, 0, 1, 2, 4) + 50);
}

TEST_F(LoadKinds, AppendingAGridAddsZones) {
    loadFirst();
    appendFiles({gridFile("b.x", twoGrids)}, {otherSolution("b.q", 2)});
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {3, 4}}}, {true}, 0}));
    EXPECT_EQ(host().log().autoStyledZones, (std::vector<Members>{{3, 4}}));
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 3, 4}));
    checkStep(1, 0);
    checkStep(3, 50);
}

TEST_F(LoadKinds, AppendingNeverChangesThePlotType) {
    loadFirstLine();
    host().frame().setPlotType(QuorPlotType_2D);
    appendFiles({}, {solutionFile("b.q", oneLine, 2, Layout_e::OneD)});
    EXPECT_EQ(plotType(), QuorPlotType_2D);
}

TEST_F(LoadKinds, AppendingAPlaneNeverChangesThePlotType) {
    for (const std::int32_t plotType : {QuorPlotType_XY, QuorPlotType_Polar}) {
        begin();
        loadFirstPlane();
        host().frame().setPlotType(plotType);
        appendFiles({gridFile("b.x", onePlane, Layout_e::TwoD)}, {});
        EXPECT_EQ(host().frame().plotType(), plotType);
    }
}

TEST_F(LoadKinds, AppendedZonesAreStyledInPlotsOfTwoAndThreeDimensionsAlone) {
    const std::pair<std::int32_t, std::size_t> plots[] = {
        {QuorPlotType_2D, 1}, {QuorPlotType_XY, 0}, {QuorPlotType_Polar, 0}};
    for (const auto& [plotType, count] : plots) {
        begin();
        loadFirstPlane();
        host().frame().setPlotType(plotType);
        appendFiles({gridFile("b.x", onePlane, Layout_e::TwoD)}, {});
        EXPECT_EQ(host().log().autoStyledZones, std::vector<Members>(count, {2})) << plotType;
    }
}

TEST_F(LoadKinds, AppendingAGridWithIBlankAddsTheVariableToTheOldZones) {
    loadFirstGridAlone();
    appendFiles({iblankGridFile("b.x", twoGrids)}, {});
    EXPECT_EQ(variableNames(), (Texts{"X", "Y", "Z", "IBlank"}));
    EXPECT_EQ(told(),
              (Told_s{{{QuorStateChange_VarsAdded, {4}}, {QuorStateChange_ZonesAdded, {3, 4}}},
                      {true},
                      0}));
    EXPECT_EQ(host().frame().dataSet()->field(1, 4)->type, QuorFieldDataType_Float);
    EXPECT_EQ(host().frame().dataSet()->field(3, 4)->type, QuorFieldDataType_Int32);
}

TEST_F(LoadKinds, AppendingASolutionMakesZonesOnTheGridThatIsThere) {
    loadFirst();
    appendFiles({}, {otherSolution("b.q", 2)});
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {3, 4}}}, {true}, 0}));
    EXPECT_EQ(zoneNames(), (Texts{"a.q:1", "a.q:2", "b.q:1", "b.q:2"}));
    EXPECT_EQ(host().frame().dataSet()->fieldHolders(1), (std::vector<std::int32_t>{1, 2, 1, 2}));
    checkStep(1, 0);
    checkStep(3, 50);
}

TEST_F(LoadKinds, AppendingASolutionJoinsTheStrandsIfAskedTo) {
    loadFirst();
    options.addToExistingStrands = true;
    appendFiles({}, {otherSolution("b.q", 2)});
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2}));
    EXPECT_EQ(solutionTimes(), (std::vector<double>{1, 1, 2, 2}));
}

class AppendedStrands : public LoadKinds {
protected:
    /// Two time steps on grids of their own, the second of which has one more.
    void appendUnlikeSteps() {
        GridList threeGrids = twoGrids;
        threeGrids.push_back({5, 7, 11});
        options.uniformGridStructure = false;
        appendFiles({gridFile("b.x", twoGrids), gridFile("c.x", threeGrids)},
                    {solutionFile("b.q", twoGrids, 2), solutionFile("c.q", threeGrids, 3)});
    }
};

TEST_F(AppendedStrands, OfUnlikeGridsAreNewForEachStep) {
    loadFirst();
    appendUnlikeSteps();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(AppendedStrands, ThatJoinThoseThereAreNotNewForEachStep) {
    loadFirst();
    options.addToExistingStrands = true;
    appendUnlikeSteps();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 1, 2, 1, 2, 3}));
}

TEST_F(AppendedStrands, OfUnlikeGridsGoOnFromStepToStepIfNotToBeNew) {
    loadFirst();
    options.assignNewStrandIdForEachTimeStep = false;
    appendUnlikeSteps();
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{1, 2, 3, 4, 3, 4, 5}));
}

// A 1-D solution has three variables, so that with its grid it still counts as one.
TEST_F(LoadKinds, AppendingASolutionToALoneGridPutsItOnTheZonesThatAreThere) {
    loadFirstLine();
    ASSERT_EQ(variableNames().size(), 4U);
    appendFiles({}, {solutionFile("b.q", oneLine, 2, Layout_e::OneD)});
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_ZonesAdded, {1}}}, {true}, 0}));
    EXPECT_EQ(zoneNames(), Texts{"b.q:1"});
    EXPECT_EQ(strands(), std::vector<std::int32_t>{2});
    EXPECT_EQ(plotType(), QuorPlotType_XY);
}

TEST_F(LoadKinds, AppendingToALoneGridRewritesNoValuesInTheCells) {
    loadFirstLine();
    host().frame().dataSet()->field(1, 4)->location = QuorValueLocation_CellCentred;
    useFiles({}, {solutionFile("b.q", oneLine, 2, Layout_e::OneD)});
    options.append = true;
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{"Solution variables must all be nodal in the existing dataset if "
                                "replacing the solution."});
}

TEST_F(LoadKinds, AppendingFunctionsAddsVariablesToAllZones) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 1), solutionFile("b.q", twoGrids, 2)});
    ASSERT_TRUE(load());
    begin();
    appendFiles({}, {}, {functionFile("a.fun", twoGrids, 2), functionFile("b.fun", twoGrids, 2)});
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_VarsAdded, {9, 10}}}, {}, 0}));
    EXPECT_EQ(variableNames()[8], "F1V1");
    EXPECT_EQ(variableNames()[9], "F1V2");
    checkFunctions(1, 9, 2);
    checkFunctions(3, 9, 2);
}

TEST_F(LoadKinds, AppendingFunctionsTwiceNamesTheSecondByAFreeOrdinal) {
    loadFirst();
    appendFiles({}, {}, {functionFile("a.fun", twoGrids, 2)});
    begin();
    appendFiles({}, {}, {functionFile("b.fun", twoGrids, 3)});
    EXPECT_EQ(variableNames().back(), "F2V3");
    EXPECT_EQ(told().changes, (std::vector<std::pair<std::int32_t, Members>>{
                                  {QuorStateChange_VarsAdded, {11, 12, 13}}}));
    checkFunctions(1, 9, 2);
    checkFunctions(1, 11, 3);
}

TEST_F(LoadKinds, AppendingFunctionsInTextReadsThemAtOnce) {
    loadFirst();
    form.encoding = Encoding_e::Text;
    appendFiles({}, {}, {functionFile("a.fun", twoGrids, 2)});
    EXPECT_EQ(host().frame().dataSet()->field(2, 10)->state(), host::FieldState_e::Stored);
    checkFunctions(1, 9, 2);
}

TEST_F(LoadKinds, AppendingFunctionsInDoublePrecisionMakesVariablesOfIt) {
    loadFirst();
    form.precision = Precision_e::Double;
    appendFiles({}, {}, {functionFile("a.fun", twoGrids, 2)});
    EXPECT_EQ(host().frame().dataSet()->field(1, 9)->type, QuorFieldDataType_Double);
    const host::FetchResult_s field = host().fetch(2, 10);
    ASSERT_TRUE(field.ok);
    EXPECT_EQ(static_cast<const double*>(field.values)[1], placeValue(1, 1, 1, 0, 0));
}

class AppendedFunctions : public LoadKinds {
protected:
    /// The one message of a refused append, which keeps the zones.
    std::string refusal(const Texts& functions) {
        useFiles({}, {}, functions);
        options.append = true;
        const std::int32_t zones = zoneCount();
        EXPECT_FALSE(load());
        EXPECT_EQ(zoneCount(), zones);
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(messages().size(), 1U);
        return messages().empty() ? "" : messages().front();
    }
};

const std::string zoneRule =
    "If you are appending function files, you must append one file per existing time step already "
    "loaded. Also, any existing boundary zones will not allow appending function files.";

TEST_F(AppendedFunctions, WantOneFileForEachTimeStep) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 1), solutionFile("b.q", twoGrids, 2)});
    ASSERT_TRUE(load());
    begin();
    EXPECT_EQ(refusal({functionFile("a.fun", twoGrids, 2)}),
              zoneRule + " You are appending 1 function files with 2 zones each and there exist 4 "
                         "zones.");
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_TRUE(host().log().stateChanges.empty());
}

TEST_F(AppendedFunctions, SayLessOfGridsThatDiffer) {
    loadFirst();
    options.uniformGridStructure = false;
    EXPECT_EQ(refusal({functionFile("a.fun", twoGrids, 2), functionFile("b.fun", twoGrids, 2)}),
              zoneRule);
}

// Three zones for two and one grids would do, were they counted file by file.
TEST_F(AppendedFunctions, CountTheGridsOfTheFirstFileForEach) {
    loadFirst();
    appendFiles({gridFile("b.x", {{2, 3, 5}})}, {});
    begin();
    options.uniformGridStructure = options.solutionsShareStructure = false;
    EXPECT_EQ(refusal({functionFile("a.fun", twoGrids, 2), functionFile("b.fun", {{2, 3, 5}}, 2)}),
              zoneRule);
}

TEST_F(AppendedFunctions, DoNotGoOntoZonesOfOtherSizes) {
    loadFirst();
    const std::string file = functionFile("a.fun", {{2, 3, 5}, {3, 5, 11}}, 2);
    EXPECT_EQ(refusal({file}),
              "The function file does not fit the zones that are there.\nFile: " + file);
    EXPECT_EQ(variableNames().size(), 10U); // with nothing behind the new ones
    EXPECT_EQ(host().frame().dataSet()->field(1, 9)->state(), host::FieldState_e::Empty);
}

TEST_F(AppendedFunctions, OfALaterStepHaveNoMoreVariablesThanTheFirst) {
    useFiles({gridFile("a.x", twoGrids)},
             {solutionFile("a.q", twoGrids, 1), solutionFile("b.q", twoGrids, 2)});
    ASSERT_TRUE(load());
    begin();
    options.solutionsShareStructure = false;
    EXPECT_EQ(refusal({functionFile("a.fun", twoGrids, 2), functionFile("b.fun", twoGrids, 3)}),
              "Function Files do not each have the same number of variables.");
    EXPECT_EQ(variableNames(), gridAndSolution);
}

TEST_F(AppendedFunctions, WantTheHostsAnswer) {
    loadFirst();
    host().failCall("QuorUtilDataSetGetInfo", 1);
    EXPECT_EQ(refusal({functionFile("a.fun", twoGrids, 2)}),
              "QuorUtilDataSetGetInfo: failed on purpose");
}

TEST_F(AppendedFunctions, EndQuietlyOnInterruptionAndKeepTheVariables) {
    loadFirst();
    useFiles({}, {}, {functionFile("a.fun", twoGrids, 2)});
    options.append = true;
    host().settings().progressObserver = [](const host::ProgressState_s&) {
        if (variableNames().size() == 10)
            host().requestInterrupt();
    };
    EXPECT_FALSE(load());
    host().settings().progressObserver = nullptr;
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(variableNames().size(), 10U);
}

} // namespace
} // namespace quorvia::testsupport
