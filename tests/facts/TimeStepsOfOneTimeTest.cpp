// Loads whose time steps all have one time: the times of the names, else the question to the user
// and its answers.
#include "TimeSeries.h"
#include "acceptance/behaviour/Snapshot.h"

namespace quorvia::testsupport {
namespace {

const std::string question =
    "Solution time is identical for all time steps. To load all zones into a single time step "
    "press \"Ok\" otherwise press \"Cancel\" and rename the solution files so that each filename "
    "contains a unique solution time.";

constexpr bool ok = true;
constexpr bool cancel = false;

class TimeStepsOfOneTime : public TimeSeries {
protected:
    /// Whether the load succeeds with the question, answered so.
    static bool isLoadedAt(bool answer, const Load_s& load) {
        host().clearLog();
        host().setAnswers({answer}, !answer);
        const bool isLoaded = LoadedAddOnTest::load(load).ok;
        EXPECT_EQ(messages(), Texts{question});
        return isLoaded;
    }
    /// Names tell 2 and 5.
    Load_s toldByNames(const Settings& settings = {withStrands}) const {
        return named({{"q_2.q", 0.25}, {"q_5.q", 0.25}}, settings);
    }
};

TEST_F(TimeStepsOfOneTime, TakeTheTimesOfTheirNamesWithoutAQuestion) {
    EXPECT_EQ(after(toldByNames()), (Texts{"1@2", "2@2", "1@5", "2@5"}));
}

// Two of three are enough.
TEST_F(TimeStepsOfOneTime, NeedNotBeAll) {
    EXPECT_EQ(after(named({{"q.1", 0.25}, {"q.2", 0.5}, {"q.3", 0.5}})),
              (Texts{"1@1", "2@1", "1@2", "2@2", "1@3", "2@3"}));
}

TEST_F(TimeStepsOfOneTime, AreLoadedAsOneOnOk) {
    EXPECT_TRUE(isLoadedAt(ok, steps({0.5, 0.5})));
    EXPECT_EQ(series(), (Texts{"1@0.5", "2@0.5", "1@0.5", "2@0.5"}));
    EXPECT_TRUE(handedOver("EXTRACTTIMEFROMSOLFILENAMES", "Yes"));
}

TEST_F(TimeStepsOfOneTime, AreNotAskedAboutAgainOnReplay) {
    EXPECT_TRUE(isLoadedAt(ok, steps({0.5, 0.5})));
    const Texts instructions = host().log().instructions;
    const std::string accepted = snapshotOfFrame();
    host().frame().reset();
    host().clearLog();
    EXPECT_TRUE(host().importInstructions(instructions).ok);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(host().log().instructions, instructions);
    EXPECT_EQ(snapshotOfFrame(), accepted);
}

TEST_F(TimeStepsOfOneTime, LeaveAnEmptyFrameOnCancel) {
    after({.gridFiles = {files_.grid("a.x")}});
    EXPECT_FALSE(isLoadedAt(cancel, steps({0.5, 0.5})));
    EXPECT_EQ(host().frame().dataSet(), nullptr);
    EXPECT_TRUE(showedProgress("Cleaning up..."));
    EXPECT_EQ(host().log().instructions, Texts());
}

TEST_F(TimeStepsOfOneTime, AreAskedAboutIfTheHostFindsNoTimesInTheNames) {
    const Load_s load = toldByNames();
    host().failCall("QuorUtilExtractTimesFromFileNames", 1);
    EXPECT_FALSE(isLoadedAt(cancel, load));
}

TEST_F(TimeStepsOfOneTime, AreAskedAboutInASelectionToo) {
    host().setAnswers({}, ok);
    EXPECT_TRUE(
        select({files_.grid("a.x"), files_.solution("a.q", 1), files_.solution("b.q", 1)}).ok);
    EXPECT_EQ(messages(), Texts{question});
}

TEST_F(TimeStepsOfOneTime, AreAskedAboutOnAnAppendToo) {
    after(steps({1, 2}));
    const std::string before = snapshotOfFrame();
    const Load_s more = named({{"p.q", 9}, {"r.q", 9}}, {appending, withStrands});
    EXPECT_FALSE(isLoadedAt(cancel, more));
    EXPECT_EQ(snapshotOfFrame(), before);
    ASSERT_EQ(host().log().undo.size(), 2U);
    EXPECT_EQ(host().log().undo.back().success, false);
    EXPECT_TRUE(isLoadedAt(ok, more));
    EXPECT_EQ(host().log().undo.back().success, true);
    EXPECT_EQ(zoneCount(), 8);
    const Texts instructions = host().log().instructions;
    host().clearLog();
    EXPECT_TRUE(host().importInstructions(instructions).ok);
    EXPECT_EQ(messages(), Texts());
    EXPECT_EQ(zoneCount(), 12);
}

TEST_F(TimeStepsOfOneTime, AreNoMatterWithoutStrands) {
    EXPECT_EQ(after(steps({0.5, 0.5}, {noStrands})), (Texts{"0@0.5", "0@0.5", "0@0.5", "0@0.5"}));
}

TEST_F(TimeStepsOfOneTime, AreNoneInASingleFile) {
    EXPECT_EQ(after(steps({0.5})), (Texts{"1@0.5", "2@0.5"}));
}

// The new zones stand behind those that are there, which keep their times.
TEST_F(TimeStepsOfOneTime, ThatAreAppendedTakeTheTimesOfTheirNamesAlone) {
    for (const bool hasGrid : {true, false}) {
        afterFresh(steps({1}));
        Load_s more = toldByNames({appending, withStrands});
        if (!hasGrid)
            more.gridFiles.clear();
        EXPECT_EQ(after(more), (Texts{"1@1", "2@1", "3@2", "4@2", "3@5", "4@5"}))
            << "with a grid: " << hasGrid;
    }
}

// The zones that are there count as existing when the first step has taken them.
TEST_F(TimeStepsOfOneTime, ThatReplaceASolutionCountFromBehindTheFirstStep) {
    after(steps({1}));
    Load_s later = toldByNames();
    later.gridFiles.clear();
    after(later);
    EXPECT_EQ(solutionTimes(), (Numbers{0.25, 0.25, 2, 2}));
}

// Zones are counted by all grids of the files here, so the second step's number lies behind the
// last zone; the host leaves it at that.
TEST_F(TimeStepsOfOneTime, RunAheadOfTheZonesWhenGridsAreLeftOut) {
    for (const bool isFirst : {true, false}) {
        afterFresh(toldByNames({withStrands, {"FILEGRIDSET", isFirst ? "1" : "2"}}));
        EXPECT_EQ(solutionTimes(), isFirst ? (Numbers{2, 0.25}) : (Numbers{0.25, 2}));
    }
}

TEST_F(TimeStepsOfOneTime, AskTheHostForEachZoneByItsNumberAmongAllGrids) {
    host().clearFaults();
    after(toldByNames({withStrands, {"FILEGRIDSET", "2"}}));
    // Two at the scan, then zones 2 and 4.
    EXPECT_EQ(host().callCount("QuorUtilZoneSetSolutionTime"), 4);
}

} // namespace
} // namespace quorvia::testsupport
