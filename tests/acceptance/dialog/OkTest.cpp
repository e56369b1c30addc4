// What OK and Cancel do: the checks and the question, the dialog that comes back with what the user
// had, what is remembered from one launch to the next.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* lossQuestion = "Warning: All current data will be lost. Continue?";

class DialogOk : public DialogSession {
protected:
    Json itemsOf(const char* description, const char* column) const {
        return listOf(described(description), column)["items"];
    }
    void playTwoLaunches(const Texts& first, const Actions& firstActions, const Texts& second,
                         const Actions& secondActions) {
        Commands commands = atDialog(first, firstActions);
        for (const Json& each : atDialog(second, secondActions))
            commands.push_back(each);
        play(commands);
    }
    /// A data set that is there before the dialog comes up.
    void playOnDataSet(const Texts& files, const Actions& actions, bool answer) {
        Commands commands = {select({grid_, solution_}), command("answers", Json::array({answer}))};
        for (const Json& each : atDialog(files, actions))
            commands.push_back(each);
        commands.insert(commands.begin() + 1, describe("data set"));
        play(commands);
    }

    const std::string grid_ = series_.grid("wing.x");
    const std::string solution_ = series_.solution("wing.q", 1);
    const std::string otherSolution_ = series_.solution("wing2.q", 2, 30);
    const std::string function_ = series_.function("wing.f", 2);
};

TEST_F(DialogOk, WithoutAnyFileComesBack) {
    playAtDialog({grid_},
                 {press("Remove All", "Grid"), press("OK"), describe("back"), press("Cancel")});
    EXPECT_EQ(messages(described("back")),
              Texts{"Must have at least one grid, solution or function file."});
    EXPECT_EQ(described("back")["dialog"]["open"], true);
    EXPECT_EQ(last()["dialog"]["open"], false);
    EXPECT_TRUE(last()["dataSet"].is_null());
    EXPECT_EQ(exitCode_, 1);
}

TEST_F(DialogOk, RefusedForWantOfFilesRemembersTheFilesFromBefore) {
    playAtDialog({grid_, solution_}, {press("Remove All", "Grid"), press("Remove All", "Solution"),
                                      press("OK"), describe("back")});
    EXPECT_EQ(itemsOf("back", "Grid"), Json({grid_}));
    EXPECT_EQ(itemsOf("back", "Solution"), Json({solution_}));
}

TEST_F(DialogOk, QuestionAnsweredNoComesBackWithTheFiles) {
    playOnDataSet({grid_, otherSolution_}, {press("OK"), describe("back")}, false);
    const Json& asked = described("back")["messages"];
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked[0]["text"], lossQuestion);
    EXPECT_EQ(asked[0]["kind"], "question");
    EXPECT_EQ(asked[0]["answer"], false);
    EXPECT_EQ(itemsOf("back", "Grid"), Json({grid_}));
    EXPECT_EQ(itemsOf("back", "Solution"), Json({otherSolution_}));
    EXPECT_TRUE(dataSet(last()) == dataSet(described("data set")));
}

TEST_F(DialogOk, QuestionAnsweredYesReplacesTheDataSet) {
    playOnDataSet({grid_, otherSolution_}, {press("OK")}, true);
    EXPECT_EQ(messages(last()), Texts{lossQuestion});
    EXPECT_EQ(last()["ok"], true);
    EXPECT_FALSE(dataSet(last()) == dataSet(described("data set")));
    EXPECT_EQ(zoneNames(last()).size(), 2U);
}

TEST_F(DialogOk, WithAppendAsksNothing) {
    playOnDataSet({grid_, otherSolution_}, {toggle(appendCaption, true), press("OK")}, false);
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(zoneNames(last()).size(), 4U);
}

TEST_F(DialogOk, FailedLoadComesBackAndCanBeMended) {
    const std::string broken = directory().write("broken.q", "no numbers here");
    playAtDialog({grid_, broken},
                 {press("OK"), describe("back"), press("Remove All", "Solution"),
                  choose({solution_}), press("Add Files...", "Solution"), press("OK")});
    EXPECT_EQ(messages(described("back")).size(), 1U);
    EXPECT_EQ(described("back")["dialog"]["open"], true);
    EXPECT_EQ(itemsOf("back", "Solution"), Json({broken}));
    EXPECT_EQ(last()["ok"], true);
    EXPECT_EQ(zoneNames(last()).size(), 2U);
}

TEST_F(DialogOk, InterruptedLoadComesBackAndTheNextOneIsWhole) {
    for (const int step : {1, 5, 12}) {
        Commands commands = {command("interruptAtStep", step)};
        for (const Json& each : atDialog({grid_, solution_}, {press("OK"), describe("back"),
                                                              press("OK"), describe("loaded")}))
            commands.push_back(each);
        play(commands);
        EXPECT_EQ(described("back")["dialog"]["open"], true) << step;
        EXPECT_TRUE(described("back")["dataSet"].is_null()) << step;
        EXPECT_EQ(described("loaded")["ok"], true) << step;
        EXPECT_EQ(zoneNames(last()).size(), 2U) << step;
    }
}

TEST_F(DialogOk, InterruptionOfALoadThatFailedBeforeItsStepIsForgotten) {
    const std::string broken = directory().write("broken.q", "no numbers here");
    Commands commands = {command("interruptAtStep", 12)};
    for (const Json& each : atDialog(
             {grid_, broken}, {press("OK"), press("Remove All", "Solution"), choose({solution_}),
                               press("Add Files...", "Solution"), press("OK")}))
        commands.push_back(each);
    play(commands);
    EXPECT_EQ(last()["ok"], true);
    EXPECT_EQ(zoneNames(last()).size(), 2U);
}

TEST_F(DialogOk, InterruptionWaitsForTheFirstLoad) {
    Commands commands = {command("interruptAtStep", 1)};
    for (const Json& each :
         atDialog({grid_}, {press("Remove All", "Grid"), press("OK"), choose({grid_}),
                            press("Add Files...", "Grid"), press("OK"), describe("back")}))
        commands.push_back(each);
    play(commands);
    EXPECT_EQ(described("back")["dialog"]["open"], true);
    EXPECT_TRUE(last()["dataSet"].is_null());
}

TEST_F(DialogOk, RefusedWithFunctionFilesBringsThemBackAsSolutions) {
    const std::string broken = directory().write("broken.f", "no numbers here");
    playAtDialog({grid_, solution_, broken}, {press("OK"), describe("back")});
    EXPECT_EQ(itemsOf("back", "Grid"), Json({grid_}));
    EXPECT_EQ(itemsOf("back", "Solution"), Json({broken}));
    EXPECT_EQ(itemsOf("back", "Function"), Json::array());
}

TEST_F(DialogOk, OptionsOutliveALoad) {
    playTwoLaunches({grid_, solution_},
                    {toggle("Assign Strand IDs for Zones", false), toPage(structurePage),
                     toggle("Assume ASCII Files are Double Precision", true), toPage(subsetPage),
                     type("2", "I-Index Start"), type("2", "Grid Set"), press("OK")},
                    {grid_}, {toPage(structurePage), toPage(subsetPage), describe("second")});
    const Json& second = described("second");
    EXPECT_FALSE(isOn(second, selectionPage, "Assign Strand IDs for Zones"));
    EXPECT_TRUE(isOn(second, structurePage, "Assume ASCII Files are Double Precision"));
    EXPECT_EQ(nthControl(second, subsetPage, "textField", 1)["value"], "2");
    EXPECT_EQ(nthControl(second, subsetPage, "textField", 10)["value"], "2");
}

TEST_F(DialogOk, OptionsOutliveCancel) {
    playTwoLaunches({grid_}, {toPage(structurePage), radio("Manually Describe"), press("Cancel")},
                    {grid_}, {toPage(structurePage), describe("second")});
    EXPECT_EQ(nthControl(described("second"), structurePage, "radioBox", 1)["value"], 2);
}

TEST_F(DialogOk, FilesDoNotOutliveALaunchWithOthers) {
    const std::string names = directory().write("wing.nam", "A\n");
    playTwoLaunches({grid_, solution_, function_, names}, {press("Cancel")}, {otherSolution_},
                    {describe("second")});
    EXPECT_EQ(itemsOf("second", "Grid"), Json::array());
    EXPECT_EQ(itemsOf("second", "Solution"), Json({otherSolution_}));
    EXPECT_EQ(itemsOf("second", "Function"), Json::array());
    EXPECT_EQ(control(described("second"), selectionPage, "textField")["value"], "");
}

TEST_F(DialogOk, FunctionFilesAddedBeforeCancelAreGoneAtTheNextLaunch) {
    playTwoLaunches({grid_},
                    {choose({function_}), press("Add Files...", "Function"), describe("added"),
                     press("Cancel")},
                    {grid_}, {describe("second")});
    EXPECT_EQ(itemsOf("added", "Function"), Json({function_}));
    EXPECT_EQ(itemsOf("second", "Function"), Json::array());
}

TEST_F(DialogOk, CancelLoadsNothingAndEmptiesTheNameField) {
    const std::string names = directory().write("wing.nam", "A\n");
    playAtDialog({grid_, solution_, names}, {press("Cancel")});
    EXPECT_TRUE(last()["dataSet"].is_null());
    EXPECT_EQ(messages(last()), Texts());
    EXPECT_EQ(control(last(), selectionPage, "textField")["value"], "");
}

TEST_F(DialogOk, HoldsTheLockWhileTheDialogIsUp) {
    playAtDialog({grid_}, {describe("open"), press("Remove All", "Grid"), press("OK"),
                           describe("back"), press("Cancel")});
    // Of the selection and of the launch, and again of the launch from within OK.
    EXPECT_EQ(described("open")["lockDepth"], 2);
    EXPECT_EQ(described("back")["lockDepth"], 3);
    EXPECT_EQ(last()["lockDepth"], 0);
}

TEST_F(DialogOk, ActionThatCannotBeDoneEndsTheSession) {
    play(atDialog({grid_}, {toPage(subsetPage), press("Remove All", "Solution")}));
    EXPECT_EQ(exitCode_, 1);
    EXPECT_NE(shown_.find("command 2: dialog, action 2: the control is not sensitive"),
              std::string::npos)
        << shown_;
    EXPECT_EQ(last()["dialog"]["open"], false);
}

TEST_F(DialogOk, HostThatCannotMakeTheDialogIsToldAndTriedAgain) {
    for (const char* operation :
         {"QuorGUIDialogCreateModal", "QuorGUITabAdd", "QuorGUITabAddPage", "QuorGUIFrameAdd",
          "QuorGUILabelAdd", "QuorGUIToggleAdd", "QuorGUIButtonAdd", "QuorGUIListAdd",
          "QuorGUITextFieldAdd", "QuorGUIRadioBoxAdd", "QuorGUIOptionMenuAdd"}) {
        Commands commands = {command("fail", Json{{"operation", operation}, {"call", 1}}),
                             command("select", Json{{"files", {grid_}}, {"advanced", true}}),
                             describe("failed")};
        for (const Json& each : atDialog({grid_}, {press("OK")}))
            commands.push_back(each);
        play(commands);
        EXPECT_EQ(messages(described("failed")), Texts{"Out of Memory!!!"}) << operation;
        EXPECT_TRUE(described("failed")["dialog"].is_null()) << operation;
        EXPECT_EQ(last()["ok"], true) << operation;
    }
}

} // namespace
} // namespace quorvia::testsupport
