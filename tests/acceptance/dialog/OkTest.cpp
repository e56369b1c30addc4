// What OK does: the checks and the question, the dialog that comes back with what the user had,
// what is remembered for the next launch.
#include "acceptance/dialog/DialogSession.h"

namespace quorvia::testsupport {
namespace {

constexpr const char* lossQuestion = "Warning: All current data will be lost. Continue?";

class DialogOk : public DialogSession {
protected:
    Json itemsOf(const char* description, const char* column) const {
        return listOf(described(description), column)["items"];
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
};

TEST_F(DialogOk, WithoutAnyFileComesBack) {
    playAtDialog({grid_},
                 {press("Remove All", "Grid"), press("OK"), describe("back"), press("Cancel")});
    EXPECT_EQ(messages(described("back")),
              Texts{"Must have at least one grid, solution or function file."});
    EXPECT_EQ(described("back")["dialog"]["open"], true);
    EXPECT_EQ(last()["dialog"]["open"], false);
    EXPECT_TRUE(last()["dataSet"].isNull());
    EXPECT_EQ(exitCode_, 1);
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
        EXPECT_TRUE(described("back")["dataSet"].isNull()) << step;
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
    EXPECT_TRUE(last()["dataSet"].isNull());
}

TEST_F(DialogOk, OptionsOutliveALoad) {
    Commands commands =
        atDialog({grid_, solution_},
                 {toggle("Assign Strand IDs for Zones", false), toPage(structurePage),
                  toggle("Assume ASCII Files are Double Precision", true), toPage(subsetPage),
                  type("2", "I-Index Start"), type("2", "Grid Set"), press("OK")});
    for (const Json& each :
         atDialog({grid_}, {toPage(structurePage), toPage(subsetPage), describe("second")}))
        commands.push_back(each);
    play(commands);
    const Json& second = described("second");
    EXPECT_FALSE(isOn(second, selectionPage, "Assign Strand IDs for Zones"));
    EXPECT_TRUE(isOn(second, structurePage, "Assume ASCII Files are Double Precision"));
    EXPECT_EQ(nthControl(second, subsetPage, "textField", 1)["value"], "2");
    EXPECT_EQ(nthControl(second, subsetPage, "textField", 10)["value"], "2");
}

TEST_F(DialogOk, ActionThatCannotBeDoneEndsTheSession) {
    play(atDialog({grid_}, {toPage(subsetPage), press("Remove All", "Solution")}));
    EXPECT_EQ(exitCode_, 1);
    EXPECT_NE(shown_.find("command 2: dialog, action 2: the control is not sensitive"),
              std::string::npos)
        << shown_;
    EXPECT_EQ(last()["dialog"]["open"], false);
}

} // namespace
} // namespace quorvia::testsupport
