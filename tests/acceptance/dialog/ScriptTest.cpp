// How a macro's actions are played: where they go on, what becomes of those that are left, and what
// is said of one that can't be done.
#include <sstream>
#include <utility>

#include "acceptance/dialog/DialogSession.h"
#include "app/Program.h"
#include "app/macro/MacroParser.h"
#include "app/macro/MacroPlayer.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {
namespace {

class DialogScript : public DialogSession {
protected:
    /// What is said on standard error of a session that ends at the action.
    std::string problemOf(const Json& action) {
        play(atDialog({grid_}, {action, press("OK")}));
        EXPECT_EQ(exitCode_, 1);
        EXPECT_TRUE(last()["dataSet"].isNull());
        const std::string head = "macro.json: command 2: dialog, action 1: ";
        const std::size_t start = shown_.find(head);
        EXPECT_NE(start, std::string::npos) << shown_;
        return start == std::string::npos
                   ? ""
                   : shown_.substr(start + head.size(),
                                   shown_.find('\n', start) - start - head.size());
    }
    /// The account of a session for people.
    std::string account(const Commands& commands) {
        const std::string file =
            directory().write("account.json", command("commands", Json(commands)).dump());
        std::ostringstream out;
        std::ostringstream err;
        host::run({"macro", file, "--addon", PLOT3D_ADDON_PATH}, {out, err, 0});
        return out.str();
    }
    static void expectIn(const std::string& text, const std::string& part) {
        EXPECT_NE(text.find(part), std::string::npos) << text;
    }

    const std::string grid_ = series_.grid("wing.x");
    const std::string solution_ = series_.solution("wing.q", 1);
};

TEST_F(DialogScript, TellsWhatCannotBeFound) {
    EXPECT_EQ(problemOf(toPage("Files")), "there is no page \"Files\"");
    EXPECT_EQ(problemOf(toggle("Swirl", true)), "there is no toggle \"Swirl\"");
    EXPECT_EQ(problemOf(radio("4-D")), "there is no radio box with an item \"4-D\"");
    EXPECT_EQ(problemOf(menu("Plot4D")), "there is no menu with an item \"Plot4D\"");
    EXPECT_EQ(problemOf(press("Go")), "there is no button \"Go\"");
    EXPECT_EQ(problemOf(press("...", "Solution")), "there is no such button \"...\"");
    EXPECT_EQ(problemOf(type("1", "L-Index Start")), "there is no field \"L-Index Start\"");
    EXPECT_EQ(problemOf(type("1", "Start")), "there is more than one field \"Start\"");
    EXPECT_EQ(problemOf(press("Apply")), "the dialog has no such button");
}

TEST_F(DialogScript, TellsWhatCannotBeUsed) {
    EXPECT_EQ(problemOf(press("Remove All")),
              "there are 3 buttons \"Remove All\"; \"list\" says which");
    EXPECT_EQ(problemOf(press("Remove All", "Solution")), "the control is not sensitive");
    EXPECT_EQ(problemOf(menu("Swift")), "the control is not sensitive");
    EXPECT_EQ(problemOf(selectItems({2}, "Grid")), "there is no item 2");
}

TEST_F(DialogScript, TurnsToThePageOfAControl) {
    const Json& shown = shownAfter({grid_}, {type("7", "I-Index Start")});
    EXPECT_EQ(shown["dialog"]["page"], subsetPage);
    EXPECT_EQ(nthControl(shown, subsetPage, "textField", 1)["value"], "7");
    EXPECT_EQ(nthControl(shown, subsetPage, "textField", 2)["value"],
              "Last"); // as activation shows
}

TEST_F(DialogScript, WaitsForALaunch) {
    Commands commands = {command("dialog", Actions{press("OK")}), select({grid_, solution_}),
                         command("answers", Json::array({true})),
                         command("select", Json{{"files", {grid_}}, {"advanced", true}})};
    play(commands);
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(last()["dataSet"]["variables"].size(), 3U);
}

TEST_F(DialogScript, OfTwoCommandsIsOneScript) {
    play({command("dialog", Actions{press("Remove All", "Solution")}),
          command("dialog", Actions{press("OK")}),
          command("select", Json{{"files", {grid_, solution_}}, {"advanced", true}})});
    EXPECT_EQ(exitCode_, 0);
    EXPECT_EQ(last()["dataSet"]["variables"].size(), 3U);
}

TEST_F(DialogScript, FileChoiceStandsBeforeOrBehindTheButton) {
    for (const Actions& order : {Actions{choose({solution_}), press("Add Files...", "Solution")},
                                 Actions{press("Add Files...", "Solution"), choose({solution_})}})
        EXPECT_EQ(listOf(shownAfter({grid_}, order), "Solution")["items"], Json({solution_}));
}

TEST_F(DialogScript, DescribesTheMomentWithItsMessagesSoFar) {
    playAtDialog({grid_}, {press("Remove All", "Grid"), describe("before"), press("OK"),
                           describe("behind"), press("Cancel")});
    EXPECT_EQ(messages(described("before")), Texts());
    EXPECT_EQ(messages(described("behind")).size(), 1U);
    EXPECT_EQ(messages(last()), Texts());
}

TEST_F(DialogScript, AccountTellsOfADialogThatWasLeftOpen) {
    expectIn(account(atDialog({grid_}, {toPage(subsetPage)})),
             "failed, the dialog was still open and was cancelled");
}

TEST_F(DialogScript, AccountTellsOfActionsThatWereLeft) {
    expectIn(account(atDialog({grid_}, {press("OK"), toPage(subsetPage), press("OK")})),
             "loaded, 2 dialog actions left");
    expectIn(account(atDialog({grid_}, {press("OK"), press("OK")})),
             "loaded, 1 dialog action left");
}

TEST_F(DialogScript, FilesThatNoChooserAskedForAreNotForTheNextDialog) {
    Commands commands = atDialog({grid_}, {choose({solution_}), press("OK")});
    for (const Json& next :
         atDialog({grid_}, {press("Add Files...", "Solution"), describe("next"), press("Cancel")}))
        commands.push_back(next);
    play(commands);
    EXPECT_EQ(listOf(described("next"), "Solution")["items"], Json::array());
    expectIn(account(commands), "loaded, 1 dialog action left");
}

TEST_F(DialogScript, ItemsAreSelectedInAnyOrder) {
    const std::string other = series_.grid("other.x");
    const Json& shown = shownAfter({grid_, other}, {selectItems({2, 1, 2}, "Grid")});
    EXPECT_EQ(listOf(shown, "Grid")["selected"], Json({1, 2}));
}

TEST_F(DialogScript, DescribesBehindTheDialogToo) {
    playAtDialog({grid_}, {press("OK"), toPage(subsetPage), describe("loaded")});
    EXPECT_EQ(described("loaded")["ok"], true);
    EXPECT_EQ(described("loaded")["dialog"]["open"], false);
    EXPECT_EQ(described("loaded")["dataSet"]["zones"].size(), last()["dataSet"]["zones"].size());
}

TEST_F(DialogScript, EndsWhenTheUserEndsTheSession) {
    host::ReferenceHost& host = host::ReferenceHost::instance();
    host.reset();
    std::string error;
    const auto macro = host::parseMacro(
        command("commands", Json(atDialog({grid_}, {press("OK"), press("OK")}))).dump(), error);
    ASSERT_TRUE(macro.has_value()) << error;
    bool mayGoOn = true;
    host.settings().progressObserver = [&host, &mayGoOn](const host::ProgressState_s&) {
        if (std::exchange(mayGoOn, false))
            host.requestInterrupt();
    };
    host::PlaySettings_s settings{PLOT3D_ADDON_PATH};
    settings.mayGoOn = [&mayGoOn] { return mayGoOn; };
    const host::PlayedMacro_s played = host::playMacro(*macro, settings, host);
    EXPECT_FALSE(played.session.final.dataSet.has_value());
    EXPECT_EQ(played.account.back().ending, "interrupted");
    host.reset();
}

TEST_F(DialogScript, NoneAtAllCancelsTheDialog) {
    play({command("select", Json{{"files", {grid_}}, {"advanced", true}})});
    EXPECT_EQ(exitCode_, 1);
    EXPECT_EQ(last()["dialog"]["open"], false);
    EXPECT_EQ(messages(last()), Texts());
}

} // namespace
} // namespace quorvia::testsupport
