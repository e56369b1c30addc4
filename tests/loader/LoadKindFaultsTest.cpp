// One thing at a time goes wrong in loads onto a data set that is there: every call of the host
// that can fail, every step at which the user can interrupt. Nothing leaks, locks and undo states
// are balanced, and what survives is what docs/append-and-replace.md says.
#include <new>

#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

const GridList oneGrid = {{2, 3, 5}};
const GridList line = {{7, 1, 1}};

enum class Kind_e { Replace, AppendGrid, AppendSolution, AppendToLoneGrid, AppendFunctions };

struct KindCase_s {
    const char* name;
    Kind_e kind;
    std::size_t zonesBefore;
    std::size_t zonesAfter;
    std::size_t varsBefore;
    std::size_t varsAfter;
};

class LoadKindFaults : public LoaderTest, public ::testing::WithParamInterface<KindCase_s> {
protected:
    enum class Outcome_e { Loaded, Failed, OutOfMemory };

    LoadKindFaults() {
        const bool isLine = kind() == Kind_e::AppendToLoneGrid;
        const GridList& grids = isLine ? line : oneGrid;
        const Layout_e layout = isLine ? Layout_e::OneD : Layout_e::ThreeDWhole;
        grid = gridFile("a.x", grids, layout);
        for (const char* name : {"1.q", "2.q", "3.q", "4.q"})
            solutions.push_back(solutionFile(name, grids, std::stod(name), layout));
        functions = {functionFile("1.fun", oneGrid, 2), functionFile("2.fun", oneGrid, 2)};
    }
    static Kind_e kind() { return GetParam().kind; }

    /// A new data set of one or two time steps, and the options of the load onto it.
    void begin() {
        setOptions();
        const bool hasOneStep = kind() == Kind_e::AppendToLoneGrid;
        useFiles({grid}, hasOneStep ? Texts{solutions[0]} : Texts{solutions[0], solutions[1]});
        ASSERT_TRUE(load()) << ::testing::PrintToString(messages());
        setOptions();
        options.append = kind() != Kind_e::Replace;
        if (kind() == Kind_e::AppendFunctions)
            useFiles({}, {}, functions);
        else
            useFiles(kind() == Kind_e::AppendGrid ? Texts{grid} : Texts(),
                     {solutions[2], solutions[3]});
        host().clearLog();
        host().clearFaults();
    }
    void setOptions() {
        quorutildataio::releaseLoadOptions(options);
        setLoadOptionDefaults(options);
    }
    Outcome_e attempt() {
        try {
            return load() ? Outcome_e::Loaded : Outcome_e::Failed;
        } catch (const std::bad_alloc&) {
            return Outcome_e::OutOfMemory;
        }
    }
    static std::size_t zones() { return static_cast<std::size_t>(zoneCount()); }
    static std::size_t variables() { return variableNames().size(); }
    static bool isWhole() {
        return zones() == GetParam().zonesAfter && variables() == GetParam().varsAfter;
    }
    static bool hasOldZonesAndVars() {
        return zones() == GetParam().zonesBefore && variables() == GetParam().varsBefore;
    }
    /// What a failed load may leave. The zones of the first time step are the least that a replaced
    /// solution leaves; variables of appended function files stay.
    static bool hasSurvivors() {
        if (kind() == Kind_e::Replace)
            return (zones() == 1 || zones() == 2) && variables() == GetParam().varsBefore;
        if (kind() == Kind_e::AppendFunctions)
            return zones() == GetParam().zonesBefore && variables() >= GetParam().varsBefore &&
                   variables() <= GetParam().varsAfter;
        return hasOldZonesAndVars();
    }
    void expectCleanEnd(Outcome_e outcome, const std::string& story) {
        const bool refusedAtTheEnd = host().log().instructions.size() > 1;
        if (outcome == Outcome_e::Loaded || refusedAtTheEnd)
            EXPECT_TRUE(isWhole()) << story << " " << zones() << " " << variables();
        else
            EXPECT_TRUE(hasSurvivors() || isWhole())
                << story << " " << zones() << " " << variables();
        EXPECT_EQ(host().lockDepth(), 0) << story;
        EXPECT_EQ(host().log().violations, Texts()) << story;
        expectUndo(outcome == Outcome_e::Loaded, story);
    }
    /// Ends as the load did; a load onto zones that stay has one.
    static void expectUndo(bool loaded, const std::string& story) {
        const std::vector<host::UndoEvent_s>& undo = host().log().undo;
        const bool mayHaveOne = kind() != Kind_e::Replace && kind() != Kind_e::AppendFunctions;
        if (undo.empty()) {
            EXPECT_FALSE(mayHaveOne && loaded) << story;
            return;
        }
        ASSERT_EQ(undo.size(), 2U) << story;
        EXPECT_TRUE(mayHaveOne) << story;
        EXPECT_EQ(undo[0].category, 9) << story;
        EXPECT_EQ(undo[1].success, loaded) << story;
    }

    std::string grid;
    Texts solutions;
    Texts functions;
};

TEST_P(LoadKindFaults, OfEveryHostCallEndCleanly) {
    for (const std::string& operation : host::ReferenceHost::operationsThatCanFail()) {
        for (std::int64_t n = 1; true; ++n) {
            begin();
            host().failCall(operation, n);
            const Outcome_e outcome = attempt();
            const bool happened = host().callCount(operation) >= n;
            host().clearFaults();
            expectCleanEnd(outcome, operation + " " + std::to_string(n));
            if (!happened) {
                EXPECT_EQ(outcome, Outcome_e::Loaded) << operation;
                break;
            }
        }
    }
    begin();
    EXPECT_EQ(attempt(), Outcome_e::Loaded);
}

TEST_P(LoadKindFaults, OfTheUserAtEveryStepEndCleanly) {
    begin();
    host().interruptAtStep(1000000);
    ASSERT_EQ(attempt(), Outcome_e::Loaded);
    const std::int64_t steps = host().stepCount();
    for (std::int64_t n = 1; n <= steps; ++n) {
        begin();
        host().interruptAtStep(n);
        const Outcome_e outcome = attempt();
        const std::string story = "step " + std::to_string(n);
        host().clearFaults();
        expectCleanEnd(outcome, story);
        const bool tells = !host().log().undo.empty() || showedProgress("Cleaning up...");
        if (outcome == Outcome_e::Failed) {
            EXPECT_EQ(messages(), tells ? Texts{"Plot3D Data load interrupted"} : Texts()) << story;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, LoadKindFaults,
    ::testing::Values(KindCase_s{"Replace", Kind_e::Replace, 2, 2, 8, 8},
                      KindCase_s{"AppendGrid", Kind_e::AppendGrid, 2, 4, 8, 8},
                      KindCase_s{"AppendSolution", Kind_e::AppendSolution, 2, 4, 8, 8},
                      KindCase_s{"AppendToLoneGrid", Kind_e::AppendToLoneGrid, 1, 2, 4, 4},
                      KindCase_s{"AppendFunctions", Kind_e::AppendFunctions, 2, 2, 8, 10}),
    [](const ::testing::TestParamInfo<KindCase_s>& row) { return std::string(row.param.name); });

} // namespace
} // namespace quorvia::testsupport
