// Function files that are appended: the variables that all zones get, and when there are none.
#include "LoadKinds.h"

namespace quorvia::testsupport {
namespace {

class AppendedFunctions : public LoadKinds {
protected:
    /// Each value is shifted like that of a solution of the time.
    std::string functions(const std::string& name, std::int32_t count = 2, int time = 0) const {
        return files_.function(name, count, shiftOf(time));
    }
    /// The variables from `variable` on of both grids of a step hold those of a function file.
    void expectFunctions(std::int32_t firstZone, std::int32_t variable, std::int32_t count,
                         int time = 0) const {
        for (std::int32_t grid = 0; grid < 2; ++grid)
            for (std::int32_t number = 0; number < count; ++number)
                expectField(firstZone + grid, variable + number, grid, number, shiftOf(time));
    }
    /// The one message of a load that is refused, and keeps the zones.
    static std::string refusalOf(const Load_s& load) {
        const Texts zones = zoneNames();
        EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
        EXPECT_EQ(zoneNames(), zones);
        EXPECT_TRUE(host().log().undo.empty());
        EXPECT_EQ(messages().size(), 1U);
        return messages().empty() ? "" : messages().front();
    }
};

TEST_F(AppendedFunctions, TellOfTheirVariablesWithoutAnUndoState) {
    begin(gridAndSolutions({1, 2}));
    expectLoads(appendedFunctions({functions("a.f", 2, 1), functions("b.f", 2, 2)}));
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_VarsAdded, {9, 10}}}, {}, 0}));
    EXPECT_EQ(plotType(), QuorPlotType_3D);
    EXPECT_EQ(zoneNames(), (Texts{"s.1.q:1", "s.1.q:2", "s.2.q:1", "s.2.q:2"}));
    EXPECT_EQ(variableNames()[8], "F1V1");
    EXPECT_EQ(variableNames()[9], "F1V2");
    expectFunctions(1, 9, 2, 1);
    expectFunctions(3, 9, 2, 2);
}

TEST_F(AppendedFunctions, AreNamedByAFreeOrdinalTheSecondTime) {
    begin(gridAndSolutions({1}));
    expectLoads(appendedFunctions({functions("a.f")}));
    host().clearLog();
    expectLoads(appendedFunctions({functions("b.f", 3)}));
    EXPECT_EQ(variableNames().back(), "F2V3");
    EXPECT_EQ(told(), (Told_s{{{QuorStateChange_VarsAdded, {11, 12, 13}}}, {}, 0}));
    expectFunctions(1, 9, 2);
    expectFunctions(1, 11, 3);
}

TEST_F(AppendedFunctions, InTextAreReadAtOnce) {
    begin(gridAndSolutions({1}));
    files_.form.encoding = Encoding_e::Text;
    expectLoads(appendedFunctions({functions("a.f")}));
    EXPECT_EQ(state(2, 10), host::FieldState_e::Stored);
    expectFunctions(1, 9, 2);
}

TEST_F(AppendedFunctions, InDoublePrecisionMakeVariablesOfIt) {
    begin(gridAndSolutions({1}));
    files_.form.precision = Precision_e::Double;
    expectLoads(appendedFunctions({functions("a.f")}));
    EXPECT_EQ(fieldType(1, 9), QuorFieldDataType_Double);
    expectFunctions(1, 9, 2);
}

// ---- Refused ------------------------------------------------------------------------------------

const std::string zoneRule =
    "If you are appending function files, you must append one file per existing time step already "
    "loaded. Also, any existing boundary zones will not allow appending function files.";
const Settings unlike = {{"UNIFORMGRIDSTRUCTURE", "No"}};

TEST_F(AppendedFunctions, WantOneFileForEachTimeStep) {
    begin(gridAndSolutions({1, 2}));
    EXPECT_EQ(refusalOf(appendedFunctions({functions("a.f")})),
              zoneRule + " You are appending 1 function files with 2 zones each and there exist 4 "
                         "zones.");
    EXPECT_EQ(variableNames(), gridAndSolution);
    EXPECT_TRUE(host().log().stateChanges.empty());
}

TEST_F(AppendedFunctions, SayLessOfGridsThatDiffer) {
    begin(gridAndSolutions({1}));
    EXPECT_EQ(refusalOf(appendedFunctions({functions("a.f"), functions("b.f")}, unlike)), zoneRule);
}

// Three zones for two and one grids would do, were they counted file by file.
TEST_F(AppendedFunctions, CountTheGridsOfTheFirstFileForEach) {
    begin(gridAndSolutions({1}));
    const std::string two = functions("a.f");
    files_.grids.pop_back();
    expectLoads(appended({.gridFiles = {files_.grid("b.x")}}));
    host().clearLog();
    EXPECT_EQ(
        refusalOf(appendedFunctions({two, functions("b.f")}, {{"UNIFORMGRIDSTRUCTURE", "No"},
                                                              {"SOLUTIONSSHARESTRUCTURE", "No"}})),
        zoneRule);
}

TEST_F(AppendedFunctions, DoNotGoOntoZonesOfOtherSizes) {
    begin(gridAndSolutions({1}));
    files_.grids.back() = {3, 5, 11};
    const std::string file = functions("a.f");
    EXPECT_EQ(refusalOf(appendedFunctions({file})),
              "The function file does not fit the zones that are there.\nFile: " + file);
    EXPECT_EQ(variableNames().size(), 10U); // with nothing behind the new ones
    EXPECT_EQ(state(1, 9), host::FieldState_e::Empty);
}

TEST_F(AppendedFunctions, OfALaterStepHaveNoMoreVariablesThanTheFirst) {
    begin(gridAndSolutions({1, 2}));
    EXPECT_EQ(refusalOf(appendedFunctions({functions("a.f", 2), functions("b.f", 3)},
                                          {{"SOLUTIONSSHARESTRUCTURE", "No"}})),
              "Function Files do not each have the same number of variables.");
    EXPECT_EQ(variableNames(), gridAndSolution);
}

TEST_F(AppendedFunctions, WantTheHostsAnswer) {
    begin(gridAndSolutions({1}));
    host().failCall("QuorUtilDataSetGetInfo", 1);
    EXPECT_EQ(refusalOf(appendedFunctions({functions("a.f")})),
              "QuorUtilDataSetGetInfo: failed on purpose");
}

TEST_F(AppendedFunctions, EndQuietlyOnInterruptionAndKeepTheVariables) {
    begin(gridAndSolutions({1}));
    host().settings().progressObserver = [](const host::ProgressState_s&) {
        if (variableNames().size() == 10)
            host().requestInterrupt();
    };
    EXPECT_FALSE(load(appendedFunctions({functions("a.f")})).ok);
    host().settings().progressObserver = nullptr;
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(variableNames().size(), 10U);
}

} // namespace
} // namespace quorvia::testsupport
