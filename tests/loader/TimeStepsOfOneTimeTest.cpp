// Loads whose time steps all have one time, from the files to the question and its answers.
#include "LoaderFixture.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* question =
    "Solution time is identical for all time steps. To load all zones into a single time step "
    "press \"Ok\" otherwise press \"Cancel\" and rename the solution files so that each filename "
    "contains a unique solution time.";

constexpr bool yes = true;

class TimeStepsOfOneTime : public LoaderTest {
protected:
    void useSteps(const Texts& names) {
        Texts solutions;
        for (const std::string& name : names)
            solutions.push_back(solutionFile(name, twoGrids, 0.25));
        useFiles({gridFile("a.x", twoGrids)}, solutions);
    }
};

TEST_F(TimeStepsOfOneTime, TakeTheTimesOfTheirNamesWithoutAQuestion) {
    useSteps({"q_2.q", "q_5.q"});
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{2, 2, 5, 5}));
}

TEST_F(TimeStepsOfOneTime, AreLoadedAsOneOnOk) {
    useSteps({"a.q", "b.q"});
    host().setAnswers({}, yes);
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts{question});
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.25, 0.25, 0.25}));
}

TEST_F(TimeStepsOfOneTime, AreNotAskedForAgainAfterOk) {
    useSteps({"a.q", "b.q"});
    host().setAnswers({}, yes);
    EXPECT_TRUE(load());
    EXPECT_TRUE(options.extractTimeFromSolFileNames);
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts{question});
}

TEST_F(TimeStepsOfOneTime, LeaveAnEmptyFrameOnCancel) {
    makeOldDataSet({"X"}, 3);
    useSteps({"a.q", "b.q"});
    host().setAnswers({}, !yes);
    EXPECT_FALSE(load());
    EXPECT_EQ(messages(), Texts{question});
    EXPECT_EQ(host().frame().dataSet(), nullptr);
    EXPECT_TRUE(showedProgress("Cleaning up..."));
    EXPECT_FALSE(host().log().instructionsHandedOver);
}

// The new zones stand behind those that are there, which keep their times.
TEST_F(TimeStepsOfOneTime, ThatAreAppendedTakeTheTimesOfTheirNamesAlone) {
    useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
    ASSERT_TRUE(load());
    useSteps({"q_2.q", "q_5.q"});
    options.append = true;
    EXPECT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{1, 1, 2, 2, 5, 5}));
}

TEST_F(TimeStepsOfOneTime, ThatAreAppendedWithoutAGridTakeTheTimesOfTheirNamesAlone) {
    useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
    ASSERT_TRUE(load());
    useSteps({"q_2.q", "q_5.q"});
    options.gridFiles.clear();
    options.hasGridFiles = false;
    options.append = true;
    EXPECT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{1, 1, 2, 2, 5, 5}));
}

// The zones that are there count as existing when the first step has taken them.
TEST_F(TimeStepsOfOneTime, ThatReplaceASolutionCountFromBehindTheFirstStep) {
    useFiles({gridFile("a.x", twoGrids)}, {solutionFile("a.q", twoGrids, 1)});
    ASSERT_TRUE(load());
    useSteps({"q_2.q", "q_5.q"});
    options.gridFiles.clear();
    options.hasGridFiles = false;
    EXPECT_TRUE(load()) << ::testing::PrintToString(messages());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 0.25, 2, 2}));
}

TEST_F(TimeStepsOfOneTime, AreAskedForOnEveryRoute) {
    useSteps({"a.q", "b.q"});
    host().setAnswers({}, yes);
    EXPECT_TRUE(load(fromSelection));
    EXPECT_EQ(messages(), Texts{question});
}

TEST_F(TimeStepsOfOneTime, AreNoMatterWithoutStrands) {
    useSteps({"a.q", "b.q"});
    options.assignStrandIds = false;
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(strands(), (std::vector<std::int32_t>{0, 0, 0, 0}));
}

TEST_F(TimeStepsOfOneTime, AreNoMatterForASingleStep) {
    useSteps({"a.q"});
    EXPECT_TRUE(load());
    EXPECT_EQ(messages(), Texts());
}

// Zones are counted by all grids of the files here, so the second step's number lies behind the
// last zone; the host leaves it at that.
TEST_F(TimeStepsOfOneTime, RunAheadOfTheZonesWhenGridsAreLeftOut) {
    useSteps({"q_2.q", "q_5.q"});
    selectGrids({2});
    EXPECT_TRUE(load());
    EXPECT_EQ(solutionTimes(), (std::vector<double>{0.25, 2}));
    EXPECT_EQ(host().callCount("QuorUtilZoneSetSolutionTime"), 4); // two at the scan, zones 2 and 4
}

} // namespace
} // namespace quorvia::testsupport
