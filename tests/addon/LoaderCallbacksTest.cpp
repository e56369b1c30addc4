#include "addon/LoaderCallbacks.h"

#include "addon/AddOnFixture.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class LoaderCallbacks : public testsupport::AddOnTest {
protected:
    bool importInstructions(const Texts& instructions) {
        return host().importInstructions(instructions).ok;
    }
};

TEST_F(LoaderCallbacks, BeginNoLoadOfInstructionsThatDoNotParse) {
    EXPECT_FALSE(importInstructions({"STANDARDSYNTAX", "1.0", "FILEGRIDSET", "1-3"}));
    EXPECT_EQ(messages(), Texts{"Must have at least one grid, solution or function file."});
    EXPECT_EQ(host().log().progress.texts(), Texts());
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 0);
}

TEST_F(LoaderCallbacks, BeginALoadOfInstructionsThatParse) {
    EXPECT_FALSE(importInstructions(
        {"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "/nowhere/a.x", "FILEGRIDSET", "1"}));
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 1);
}

TEST_F(LoaderCallbacks, LeaveTheDialogAlone) {
    gLoadOptions.gridFiles = {"dialog.x"};
    gRetainedSolutionFiles = {"dialog.q"};
    importInstructions({"STANDARDSYNTAX", "1.0", "FILELIST_GRIDFILES", "1", "/nowhere/a.x"});
    EXPECT_EQ(gLoadOptions.gridFiles, Texts{"dialog.x"});
    EXPECT_EQ(gRetainedSolutionFiles, Texts{"dialog.q"});
}

class StateChange : public testsupport::AddOnTest {
protected:
    void SetUp() override {
        AddOnTest::SetUp();
        gLoadOptions.gridFiles = gLoadOptions.solutionFiles = gLoadOptions.functionFiles = {"a"};
        gLoadOptions.gridSet = QuorUtilSetAlloc(true);
        gRetainedGridFiles = gRetainedSolutionFiles = gRetainedFunctionFiles = {"a"};
        gRetainedNameFile = "a";
    }
};

TEST_F(StateChange, OfCode15EmptiesTheListsOfTheDialog) {
    stateChangeCallback(15);
    EXPECT_TRUE(gLoadOptions.gridFiles.empty() && gLoadOptions.solutionFiles.empty());
    EXPECT_TRUE(gLoadOptions.functionFiles.empty() && gRetainedSolutionFiles.empty());
    EXPECT_EQ(gLoadOptions.gridSet, nullptr);
}

TEST_F(StateChange, OfCode15KeepsTheOtherRememberedFiles) {
    stateChangeCallback(15);
    EXPECT_EQ(gRetainedGridFiles, Texts{"a"});
    EXPECT_EQ(gRetainedFunctionFiles, Texts{"a"});
    EXPECT_EQ(gRetainedNameFile, "a");
}

TEST_F(StateChange, OfCode15ReleasesTheOptionsBeforeItTakesTheLock) {
    host().recordTranscript(true);
    stateChangeCallback(15);
    const Texts expected = {"QuorUtilSetDealloc(set#1)", "QuorUtilLockStart(addon#1)",
                            "QuorUtilLockFinish(addon#1)"};
    EXPECT_EQ(host().log().transcript, expected);
}

TEST_F(StateChange, OfAnyOtherCodeDoesNothing) {
    for (const std::int32_t code : {-1, 0, 1, 3, 14, 16})
        stateChangeCallback(code);
    EXPECT_EQ(gLoadOptions.gridFiles, Texts{"a"});
    EXPECT_NE(gLoadOptions.gridSet, nullptr);
    EXPECT_EQ(gRetainedSolutionFiles, Texts{"a"});
    EXPECT_EQ(host().callCount("QuorUtilLockStart"), 0);
}

TEST_F(StateChange, ReachesTheAddOnFromTheHost) {
    host().sendStateChange(15);
    EXPECT_EQ(gRetainedSolutionFiles, Texts());
}

} // namespace
} // namespace quorvia::quorutildataio
