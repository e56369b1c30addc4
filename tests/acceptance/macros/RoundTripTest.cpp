// The instructions of a load repeat it on the same starting data set: the same data set again, and
// the same instructions. And what loads of parts of the files give, value by value.
#include "acceptance/macros/KindSession.h"

namespace quorvia::testsupport {
namespace {

class RoundTrip : public KindSession {
protected:
    /// `start` must leave no instructions that matter: the replay is of the instructions that
    /// `load` handed over.
    void expectRepeats(const Json& start, const Json& load) {
        play({start, load, describe("first")});
        ASSERT_EQ(exitCode_, 0);
        const Json first = described("first");
        play({start, command("instructions", first["instructions"])});
        EXPECT_EQ(exitCode_, 0);
        EXPECT_TRUE(dataSet(last()) == dataSet(first));
        EXPECT_EQ(last()["instructions"], first["instructions"]);
        for (const char* told : {"messages", "undo"})
            EXPECT_EQ(last()[told], first[told]);
    }
};

TEST_F(RoundTrip, OfEachKindOfLoad) {
    for (const LoadKind_e kind : allLoadKinds) {
        SCOPED_TRACE(nameOf(kind));
        expectRepeats(start(kind), loadOf(kind));
    }
}

TEST_F(RoundTrip, OfEachKindWithoutSharing) {
    const Json noSharing = command("host", command("sharingAllowed", false));
    for (const LoadKind_e kind : allLoadKinds) {
        SCOPED_TRACE(nameOf(kind));
        play({start(kind), loadOf(kind), describe("shared")});
        const Json shared = described("shared");
        play({noSharing, start(kind), loadOf(kind), describe("first"), command("resetFrame", true),
              start(kind), command("instructions", shared["instructions"])});
        EXPECT_TRUE(dataSet(last()) == dataSet(described("first")));
        EXPECT_EQ(last()["instructions"], shared["instructions"]);
    }
}

TEST_F(RoundTrip, OfASelectionThatAppends) {
    expectRepeats(select({grid_, solutions_[0]}),
                  command("select", Json{{"files", {grid_, solutions_[2]}}, {"append", true}}));
    expectRepeats(select({grid_, solutions_[0], solutions_[1]}),
                  command("select", Json{{"files", functions_}, {"append", true}}));
}

TEST_F(RoundTrip, OfAReplacementThatJoinsNothing) {
    expectRepeats(start(LoadKind_e::ReplaceSolution),
                  loadOf(LoadKind_e::ReplaceSolution,
                         {{"ADDTOEXISTINGSTRANDS", "Yes"}, {"UNIFORMGRIDSTRUCTURE", "No"}}));
}

TEST_F(RoundTrip, OfSubsets) {
    const Settings subset = {
        {"FILEGRIDSET", "2"}, {"IINDEXRANGE", "1,,2"}, {"JINDEXRANGE", "2,4,2"}};
    for (const LoadKind_e kind : {LoadKind_e::Fresh, LoadKind_e::AppendGrid}) {
        SCOPED_TRACE(nameOf(kind));
        expectRepeats(start(kind), loadOf(kind, subset));
    }
}

// ---- Parts of the files -------------------------------------------------------------------------

/// Whether sharing is allowed.
class PartsOfFiles : public KindSession, public ::testing::WithParamInterface<bool> {
protected:
    PartsOfFiles() {
        series_.grids = {{5, 3, 7}, {2, 3, 5}, {5, 3, 7}};
        grid_ = series_.grid("parts.x");
        for (int step = 0; step < 3; ++step)
            steps_.push_back(
                series_.solution("part." + std::to_string(step) + ".q", step, 30 * step));
    }
    void playLoads(const std::vector<Json>& loads) {
        Commands commands = {command("host", command("sharingAllowed", GetParam()))};
        commands.insert(commands.end(), loads.begin(), loads.end());
        play(commands);
        ASSERT_EQ(messages(last()), Texts());
        ASSERT_EQ(exitCode_, 0);
    }
    /// Zone from 1, grid from 0.
    void expectZone(std::size_t zone, std::int32_t grid, double shift) const {
        const Json& fields = last()["dataSet"]["zones"][zone - 1]["fields"];
        for (std::int32_t variable = 0; variable < 8; ++variable) {
            const bool isCoordinate = variable < 3;
            EXPECT_TRUE(holds(fields[static_cast<std::size_t>(variable)],
                              {.dims = series_.grids[static_cast<std::size_t>(grid)],
                               .grid = grid,
                               .variable = isCoordinate ? variable : variable - 3,
                               .shift = isCoordinate ? 0 : shift,
                               .i = i_,
                               .j = j_,
                               .k = k_}))
                << "zone " << zone << " variable " << variable + 1;
        }
    }
    /// To the last point: the file is passed over by the ends of the ranges.
    void useSkips() {
        i_ = {2, 0, 2};
        j_ = {2, 0, 1};
        k_ = {1, 0, 3};
        subset_ = {{"IINDEXRANGE", "2,,2"}, {"JINDEXRANGE", "2,,1"}, {"KINDEXRANGE", "1,,3"}};
    }
    std::size_t zoneCount() const { return zoneNames(last()).size(); }

    Texts steps_; // values 0, 30 and 60 above those of placeValue()
    Range_s i_;
    Range_s j_;
    Range_s k_;
    Settings subset_;
};

TEST_P(PartsOfFiles, SelectedGridsHaveTheirOwnValues) {
    playLoads(
        {load({.grids = {grid_}, .solutions = {steps_[0], steps_[1]}}, {{"FILEGRIDSET", "2-3"}})});
    ASSERT_EQ(zoneCount(), 4U);
    expectZone(1, 1, 0);
    expectZone(2, 2, 0);
    expectZone(3, 1, 30);
    expectZone(4, 2, 30);
}

TEST_P(PartsOfFiles, SkipsTakeTheirPointsInEveryTimeStep) {
    useSkips();
    playLoads({load({.grids = {grid_}, .solutions = steps_}, subset_)});
    ASSERT_EQ(zoneCount(), 9U);
    for (std::size_t zone = 1; zone <= 9; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3),
                   30.0 * static_cast<double>((zone - 1) / 3));
}

TEST_P(PartsOfFiles, SkipsAndSelectionGoTogether) {
    useSkips();
    subset_.emplace_back("FILEGRIDSET", "1,3");
    playLoads({load({.grids = {grid_}, .solutions = {steps_[0], steps_[1]}}, subset_)});
    ASSERT_EQ(zoneCount(), 4U);
    expectZone(1, 0, 0);
    expectZone(2, 2, 0);
    expectZone(3, 0, 30);
    expectZone(4, 2, 30);
}

TEST_P(PartsOfFiles, ReplacedSolutionOfASubsetTakesItsPoints) {
    useSkips();
    playLoads({load({.grids = {grid_}, .solutions = {steps_[0]}}, subset_),
               load({.solutions = {steps_[1], steps_[2]}}, subset_)});
    ASSERT_EQ(zoneCount(), 6U);
    for (std::size_t zone = 1; zone <= 6; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3), zone <= 3 ? 30 : 60);
}

TEST_P(PartsOfFiles, SolutionAppendedOnASubsetTakesItsPoints) {
    useSkips();
    Settings append = subset_;
    append.emplace_back("APPEND", "Yes");
    playLoads({load({.grids = {grid_}, .solutions = {steps_[0]}}, subset_),
               load({.solutions = {steps_[1], steps_[2]}}, append)});
    ASSERT_EQ(zoneCount(), 9U);
    for (std::size_t zone = 1; zone <= 9; ++zone)
        expectZone(zone, static_cast<std::int32_t>((zone - 1) % 3),
                   30.0 * static_cast<double>((zone - 1) / 3));
}

TEST_P(PartsOfFiles, NumbersOfGridsMayChangeFromStepToStep) {
    SmallFiles fewer = series_;
    fewer.grids = {{5, 3, 7}};
    SmallFiles two = series_;
    two.grids = {{5, 3, 7}, {2, 3, 5}};
    playLoads(
        {load({.grids = {grid_, fewer.grid("1.x"), two.grid("2.x")},
               .solutions = {steps_[0], fewer.solution("1.q", 1, 30), two.solution("2.q", 2, 60)}},
              {{"UNIFORMGRIDSTRUCTURE", "No"}, {"ASSIGNSTRANDIDS", "Yes"}})});
    ASSERT_EQ(zoneCount(), 6U);
    for (std::int32_t grid = 0; grid < 3; ++grid)
        expectZone(static_cast<std::size_t>(grid) + 1, grid, 0);
    expectZone(4, 0, 30);
    expectZone(5, 0, 60);
    expectZone(6, 1, 60);
}

INSTANTIATE_TEST_SUITE_P(Sharing, PartsOfFiles, ::testing::Bool(),
                         [](const auto& row) { return row.param ? "Allowed" : "Forbidden"; });

} // namespace
} // namespace quorvia::testsupport
