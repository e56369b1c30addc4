// Files of several time steps: solution times, strands, and the question about times that are all
// the same. docs/time-series.md tells the rules.
#include "support/SmallFiles.h"
#include "support/LoadedAddOn.h"

namespace quorvia::testsupport {
namespace {

const std::string question =
    "Solution time is identical for all time steps. To load all zones into a single time step "
    "press \"Ok\" otherwise press \"Cancel\" and rename the solution files so that each filename "
    "contains a unique solution time.";

using Times = std::vector<double>;
using Strands = std::vector<std::int32_t>;

class TimeSeries : public LoadedAddOnTest {
protected:
    static Times times() {
        Times found;
        for (const auto& zone : dataSet().zones())
            found.push_back(zone->solutionTime);
        return found;
    }
    static Strands strands() {
        Strands found;
        for (const auto& zone : dataSet().zones())
            found.push_back(zone->strandId);
        return found;
    }
    static bool handedOver(const std::string& key, const std::string& value) {
        const Texts& list = host().log().instructions;
        for (std::size_t at = 0; at + 1 < list.size(); ++at)
            if (list[at] == key)
                return list[at + 1] == value;
        return false;
    }

    /// One grid file with two grids, and a solution file for each time.
    Load_s series(const std::vector<std::pair<std::string, double>>& solutions) const {
        Load_s load{.gridFiles = {files_.grid("a.x")}};
        for (const auto& [name, time] : solutions)
            load.solutionFiles.push_back(files_.solution(name, time));
        load.settings = {{"ASSIGNSTRANDIDS", "Yes"}, {"SOLUTIONSSHARESTRUCTURE", "Yes"}};
        return load;
    }
    /// A grid file and a solution file for each of two times; both grids are of different sizes.
    Load_s gridForEachTime() const {
        Load_s load = series({{"1.q", 0.25}, {"2.q", 0.75}});
        load.gridFiles.push_back(files_.grid("b.x"));
        return load;
    }

    SmallFiles files_{directory().path().string()};
};

TEST_F(TimeSeries, OnOneGridKeepsTheStrandOfEachGrid) {
    expectLoads(series({{"one.q", 0.25}, {"two.q", 0.75}, {"three.q", 1.5}}));
    EXPECT_EQ(strands(), (Strands{1, 2, 1, 2, 1, 2}));
    EXPECT_EQ(times(), (Times{0.25, 0.25, 0.75, 0.75, 1.5, 1.5}));
}

TEST_F(TimeSeries, WithoutStrandIdsHasNone) {
    Load_s load = series({{"one.q", 0.5}, {"two.q", 0.5}});
    load.settings = {{"ASSIGNSTRANDIDS", "No"}};
    expectLoads(load);
    EXPECT_EQ(strands(), (Strands{0, 0, 0, 0}));
    EXPECT_EQ(times(), (Times{0.5, 0.5, 0.5, 0.5}));
}

TEST_F(TimeSeries, OfUniformGridFilesKeepsTheStrandOfEachGrid) {
    expectLoads(gridForEachTime());
    EXPECT_EQ(strands(), (Strands{1, 2, 1, 2}));
}

TEST_F(TimeSeries, OfOtherGridFilesHasANewStrandForEveryZone) {
    Load_s load = gridForEachTime();
    load.settings.emplace_back("UNIFORMGRIDSTRUCTURE", "No");
    expectLoads(load);
    EXPECT_EQ(strands(), (Strands{1, 2, 3, 4}));
}

TEST_F(TimeSeries, OfOtherGridFilesCanFollowTheSizesOfGrids) {
    Load_s load = gridForEachTime();
    load.settings.emplace_back("UNIFORMGRIDSTRUCTURE", "No");
    load.settings.emplace_back("ASSIGNNEWSTRANDIDFOREACHTIMESTEP", "No");
    files_.grids = {{3, 5, 2}, {2, 3, 5}}; // the second time step has them the other way round
    load.gridFiles[1] = files_.grid("b.x");
    load.solutionFiles[1] = files_.solution("2.q", 0.75);
    expectLoads(load);
    EXPECT_EQ(strands(), (Strands{1, 2, 2, 1}));
}

TEST_F(TimeSeries, IgnoresTheWishToAddToStrandsThatAreNotThere) {
    Load_s load = series({{"one.q", 0.25}, {"two.q", 0.75}});
    load.settings.emplace_back("ADDTOEXISTINGSTRANDS", "Yes");
    expectLoads(load);
    EXPECT_EQ(strands(), (Strands{1, 2, 1, 2}));
    EXPECT_TRUE(handedOver("ADDTOEXISTINGSTRANDS", "No"));
}

TEST_F(TimeSeries, OfEqualTimesTakesThoseOfTheNames) {
    expectLoads(series({{"q.0100", 0.5}, {"q.0200", 0.5}}));
    EXPECT_EQ(times(), (Times{100, 100, 200, 200}));
}

TEST_F(TimeSeries, TakesAllTimesOfNamesIfTwoAreEqual) {
    expectLoads(series({{"q.1", 0.25}, {"q.2", 0.5}, {"q.3", 0.5}}));
    EXPECT_EQ(times(), (Times{1, 1, 2, 2, 3, 3}));
}

TEST_F(TimeSeries, KeepsDifferentTimesOfFilesWhateverTheNames) {
    expectLoads(series({{"q.100", 0.25}, {"q.200", 0.75}}));
    EXPECT_EQ(times(), (Times{0.25, 0.25, 0.75, 0.75}));
}

TEST_F(TimeSeries, TakesTimesOfNamesOnRequest) {
    Load_s load = series({{"q.100", 0.25}, {"q.200", 0.75}});
    load.settings.emplace_back("EXTRACTTIMEFROMSOLFILENAMES", "Yes");
    expectLoads(load);
    EXPECT_EQ(times(), (Times{100, 100, 200, 200}));
}

// Grids that are left out use up zone numbers, so the second step's time misses its zone.
TEST_F(TimeSeries, OfSomeGridsNumbersZonesByAllGridsWhenNamesGiveTheTimes) {
    Load_s load = series({{"q.100", 0.5}, {"q.200", 0.5}});
    load.settings.emplace_back("FILEGRIDSET", "1");
    expectLoads(load);
    EXPECT_EQ(times(), (Times{100, 0.5}));
}

TEST_F(TimeSeries, AsksIfNeitherFilesNorNamesTellTimesApart) {
    host().setAnswers({true}, false);
    EXPECT_TRUE(load(series({{"one.q", 0.5}, {"two.q", 0.5}})).ok);
    EXPECT_EQ(messages(), Texts{question});
    EXPECT_EQ(times(), (Times{0.5, 0.5, 0.5, 0.5}));
    EXPECT_TRUE(handedOver("EXTRACTTIMEFROMSOLFILENAMES", "Yes"));
}

TEST_F(TimeSeries, DoesNotAskAgainOnReplay) {
    host().setAnswers({true}, false);
    load(series({{"one.q", 0.5}, {"two.q", 0.5}}));
    const Texts instructions = host().log().instructions;
    host().clearLog();
    EXPECT_TRUE(host().importInstructions(instructions).ok);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(host().log().instructions, instructions);
}

TEST_F(TimeSeries, IsRefusedByCancelAndLeavesAnEmptyFrame) {
    host().setAnswers({false}, false);
    EXPECT_FALSE(load(series({{"one.q", 0.5}, {"two.q", 0.5}})).ok);
    EXPECT_EQ(messages(), Texts{question});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
    EXPECT_EQ(host().log().instructions, Texts());
}

TEST_F(TimeSeries, OfOneSolutionNeverAsks) {
    expectLoads(series({{"one.q", 0.5}}));
    EXPECT_EQ(times(), (Times{0.5, 0.5}));
}

TEST_F(TimeSeries, AsksIfTheHostFindsNoTimesInTheNames) {
    host().setAnswers({false}, false);
    const Load_s load = series({{"q.1", 0.5}, {"q.2", 0.5}});
    host().failCall("QuorUtilExtractTimesFromFileNames", 1);
    EXPECT_FALSE(LoadedAddOnTest::load(load).ok);
    EXPECT_EQ(messages(), Texts{question});
}

TEST_F(TimeSeries, OfFunctionFilesTakesTimesOfNames) {
    expectLoads({.gridFiles = {files_.grid("a.x")},
                 .functionFiles = {files_.function("f.10", 1), files_.function("f.20", 1)},
                 .settings = {{"ASSIGNSTRANDIDS", "Yes"}, {"EXTRACTTIMEFROMSOLFILENAMES", "Yes"}}});
    EXPECT_EQ(times(), (Times{10, 10, 20, 20}));
    EXPECT_EQ(strands(), (Strands{1, 2, 1, 2}));
}

TEST_F(TimeSeries, OfFunctionFilesWithoutTimesIsOneStepWithoutStrands) {
    expectLoads({.gridFiles = {files_.grid("a.x")},
                 .functionFiles = {files_.function("10.f", 1), files_.function("20.f", 1)},
                 .settings = {{"ASSIGNSTRANDIDS", "Yes"}}});
    EXPECT_EQ(strands(), (Strands{0, 0}));
    EXPECT_TRUE(handedOver("ASSIGNSTRANDIDS", "Yes"));
}

TEST_F(TimeSeries, OfSelectedFunctionFilesTakesTimesOfNamesUnasked) {
    expectSelectionLoads(
        {files_.grid("a.x"), files_.function("f_10.f", 1), files_.function("f_20.f", 1)});
    EXPECT_EQ(times(), (Times{10, 10, 20, 20}));
    EXPECT_TRUE(handedOver("EXTRACTTIMEFROMSOLFILENAMES", "Yes"));
}

TEST_F(TimeSeries, SharesTheGridOfTheFirstStep) {
    expectLoads(series({{"one.q", 0.25}, {"two.q", 0.75}}));
    EXPECT_EQ(dataSet().fieldHolders(1), (std::vector<std::int32_t>{1, 2, 1, 2}));
    EXPECT_EQ(dataSet().fieldHolders(4), (std::vector<std::int32_t>{1, 2, 3, 4}));
}

} // namespace
} // namespace quorvia::testsupport
