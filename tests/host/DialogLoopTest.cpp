// Launching, the user's actions and what the guest is told, nesting, and the scripted user.
#include <stdexcept>

#include "DialogFixture.h"
#include "quorvia/QuorUtilityLibrary.h"
#include "toolkit/DialogLoop.h"

namespace quorvia::host {
namespace {

class DialogLoopTest : public DialogTest {
protected:
    std::int32_t toggle_ =
        QuorGUIToggleAdd(dialog(), 10, 20, 300, 121, "Swirl ", GuestDialog::toggled);
    std::int32_t button_ =
        QuorGUIButtonAdd(dialog(), 10, 200, 300, 144, "Go", GuestDialog::pressed);
    std::int32_t field_ = QuorGUITextFieldAdd(dialog(), 10, 400, 300, 144, GuestDialog::typed);
    std::int32_t list_ = QuorGUIListAdd(dialog(), 10, 600, 300, 599, true, GuestDialog::selected);
    std::int32_t menu_ =
        QuorGUIOptionMenuAdd(dialog(), 10, 1300, 300, 144, "Red,Green,Blue", GuestDialog::chosen);
    std::int32_t box_ = QuorGUIRadioBoxAdd(dialog(), 10, 1500, 300, 299, "One", "Two", nullptr,
                                           nullptr, nullptr, GuestDialog::chosen);

    static constexpr PressDialogButton_s ok{DialogButton_e::Ok};
    static constexpr PressDialogButton_s cancel{DialogButton_e::Cancel};
};

TEST_F(DialogLoopTest, InitComesFirstAndCancelOfADialogWithoutOneEndsIt) {
    launchAndPlay({cancel});
    EXPECT_EQ(GuestDialog::told, Texts{"init"});
    EXPECT_FALSE(model().open);
}

TEST_F(DialogLoopTest, EachActionSetsTheValueAndTellsTheGuest) {
    QuorGUIListAppendItem(list_, "a");
    QuorGUIListAppendItem(list_, "b");
    QuorGUIListAppendItem(list_, "c");
    launchAndPlay({SetToggle_s{toggle_, true}, PressButton_s{button_}, TypeText_s{field_, "wing"},
                   SelectItems_s{list_, {1, 3}}, SelectItems_s{list_, {}},
                   SelectItems_s{list_, {2}}, ChooseItem_s{menu_, 3}, ChooseItem_s{box_, 2}});
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "toggle 1", "pressed", "typed wing", "selected 3",
                                        "selected 0", "selected 2", "item 3", "item 2"}));
    EXPECT_EQ(control(toggle_).value, 1);
    EXPECT_EQ(control(field_).text, "wing");
    EXPECT_EQ(control(list_).selected, std::vector<std::int32_t>{2});
    EXPECT_EQ(control(menu_).value, 3);
    EXPECT_EQ(control(box_).value, 2);
}

TEST_F(DialogLoopTest, ButtonsOfTheDialogCallTheGuest) {
    launchAndPlay({PressDialogButton_s{DialogButton_e::Help},
                   PressDialogButton_s{DialogButton_e::Apply}, ok, cancel});
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "help", "apply", "ok"}));
}

TEST_F(DialogLoopTest, LaunchEndsTheInterruptionOfWhatRanBefore) {
    host().interruptAtStep(1);
    EXPECT_FALSE(createTaskProgressBar(2)->step());
    launchAndPlay({cancel});
    EXPECT_FALSE(host().interruptRequested());
    EXPECT_TRUE(createTaskProgressBar(2)->step());
}

TEST_F(DialogLoopTest, LaunchLeavesAnInterruptionThatIsToCome) {
    host().interruptAtStep(1);
    launchAndPlay({cancel});
    EXPECT_FALSE(createTaskProgressBar(2)->step());
}

TEST_F(DialogLoopTest, PagesAreLeftThenEntered) {
    const std::int32_t tabs =
        QuorGUITabAdd(dialog(), 0, 0, 4000, 1500, GuestDialog::activated, GuestDialog::deactivated);
    const std::int32_t first = QuorGUITabAddPage(tabs, "First");
    const std::int32_t second = QuorGUITabAddPage(tabs, "Second");
    EXPECT_EQ(model().tabs->frontPage, first);
    launchAndPlay({ShowPage_s{second}, ShowPage_s{second}});
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "deactivated " + std::to_string(first),
                                        "activated " + std::to_string(second)}));
    EXPECT_EQ(model().tabs->frontPage, second);
}

TEST_F(DialogLoopTest, PageLeftInFrontIsEnteredAtTheNextLaunch) {
    const std::int32_t tabs =
        QuorGUITabAdd(dialog(), 0, 0, 4000, 1500, GuestDialog::activated, GuestDialog::deactivated);
    QuorGUITabAddPage(tabs, "First");
    const std::int32_t second = QuorGUITabAddPage(tabs, "Second");
    launchAndPlay({ShowPage_s{second}});
    GuestDialog::told.clear();
    launchAndPlay({});
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "activated " + std::to_string(second)}));
}

TEST_F(DialogLoopTest, RefusedTextStaysUnlessTheGuestReplacesIt) {
    GuestDialog::whenTyped = [this](const char* text) {
        if (std::string(text) == "bad")
            QuorGUITextFieldSetString(field_, "good");
        return false;
    };
    launchAndPlay({TypeText_s{field_, "bad"}});
    EXPECT_EQ(control(field_).text, "good");
    launchAndPlay({TypeText_s{field_, "worse"}});
    EXPECT_EQ(control(field_).text, "worse");
}

TEST_F(DialogLoopTest, DialogIsLaunchedAgainFromItsOwnOk) {
    GuestDialog::whenOk = [this, relaunched = false]() mutable {
        QuorGUIDialogDrop(dialog());
        if (std::exchange(relaunched, true))
            return;
        QuorGUIDialogLaunch(dialog());
        GuestDialog::told.emplace_back("inner launch ended");
    };
    launchAndPlay({ok, SetToggle_s{toggle_, true}, ok});
    EXPECT_EQ(GuestDialog::told,
              (Texts{"init", "ok", "init", "toggle 1", "ok", "inner launch ended"}));
    EXPECT_EQ(host().script().cancelledDialogs(), 0);
}

TEST_F(DialogLoopTest, LaunchOfAnOpenDialogIsAViolation) {
    GuestDialog::whenOk = [this] { QuorGUIDialogLaunch(dialog()); };
    launchAndPlay({ok});
    expectViolations({"QuorGUIDialogLaunch: the dialog is open"});
}

TEST_F(DialogLoopTest, DropOfAClosedDialogIsAViolation) {
    QuorGUIDialogDrop(dialog());
    expectViolations({"QuorGUIDialogDrop: the dialog is not open"});
}

TEST_F(DialogLoopTest, ExceptionOfAGuestLeavesTheDialogClosed) {
    GuestDialog::whenOk = [] { throw std::runtime_error("guest"); };
    EXPECT_THROW(launchAndPlay({ok}), std::runtime_error);
    EXPECT_FALSE(model().open);
    EXPECT_EQ(host().toolkit().front(), nullptr);
}

TEST_F(DialogLoopTest, ScriptThatLeavesADialogOpenCancelsIt) {
    launchAndPlay({SetToggle_s{toggle_, true}});
    EXPECT_EQ(host().script().cancelledDialogs(), 1);
    EXPECT_EQ(host().script().problem(), "");
}

TEST_F(DialogLoopTest, ScriptThatWantsTheImpossibleIsGivenUp) {
    QuorGUISetSensitivity(button_, false);
    launchAndPlay({PressButton_s{button_}, SetToggle_s{toggle_, true}});
    EXPECT_EQ(host().script().problem(), "the control is not sensitive");
    EXPECT_EQ(GuestDialog::told, Texts{"init"});
    EXPECT_FALSE(model().open);
}

TEST_F(DialogLoopTest, StepThatWasOnlyTheWayIsCalledAgain) {
    int calls = 0;
    host().script().addToScript({DialogStep([&](const Dialog_s&) {
        ++calls;
        return DialogMove_s{SetToggle_s{toggle_, calls == 2}, "", calls == 1};
    })});
    QuorGUIDialogLaunch(dialog());
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "toggle 0", "toggle 1"}));
}

TEST_F(DialogLoopTest, ImpossibleActionsSayWhy) {
    QuorGUIListAppendItem(list_, "a");
    const std::int32_t single = QuorGUIListAdd(dialog(), 0, 0, 9, 9, false, nullptr);
    QuorGUIListAppendItem(single, "a");
    QuorGUIListAppendItem(single, "b");
    const std::int32_t page =
        QuorGUITabAddPage(QuorGUITabAdd(dialog(), 0, 0, 4000, 1500, nullptr, nullptr), "First");
    const auto why = [this](const DialogAction& action) { return whyImpossible(model(), action); };
    EXPECT_EQ(why(ShowPage_s{page}), "");
    EXPECT_EQ(why(ShowPage_s{dialog()}), "the dialog has no such page");
    EXPECT_EQ(why(PressButton_s{page}), "the dialog has no such control");
    EXPECT_EQ(why(PressButton_s{toggle_}), "the control is of another kind");
    EXPECT_EQ(why(ChooseItem_s{menu_, 4}), "there is no item 4");
    EXPECT_EQ(why(ChooseItem_s{box_, 0}), "there is no item 0");
    EXPECT_EQ(why(SelectItems_s{list_, {2}}), "there is no item 2");
    EXPECT_EQ(why(SelectItems_s{single, {1, 2}}), "the list allows one item at a time");
    EXPECT_EQ(why(SelectItems_s{single, {2}}), "");
    EXPECT_EQ(why(SelectItems_s{list_, {1, 1}}), "the positions are not in ascending order");
}

TEST_F(DialogLoopTest, ControlBehindTheFrontPageIsOutOfReach) {
    const std::int32_t tabs = QuorGUITabAdd(dialog(), 0, 0, 4000, 1500, nullptr, nullptr);
    QuorGUITabAddPage(tabs, "First");
    const std::int32_t second = QuorGUITabAddPage(tabs, "Second");
    const std::int32_t hidden = QuorGUIButtonAdd(second, 0, 0, 9, 9, "Hidden", nullptr);
    EXPECT_EQ(whyImpossible(model(), PressButton_s{hidden}),
              "the control is on a page that is not in front");
}

TEST_F(DialogLoopTest, FileChoiceMayStandBeforeOrBehindWhatOpensTheChooser) {
    const auto chosen = [] {
        HostString name;
        const bool wasChosen =
            QuorUtilDialogGetFileName(0, name.outArgument(), "Name", nullptr, "*.nam");
        GuestDialog::told.push_back(wasChosen ? "file " + std::string(name.view()) : "no file");
    };
    GuestDialog::whenOk = chosen;
    host().script().addToScript({FileChoice{"/data/before.nam"}});
    play({ok, ok});
    host().script().addToScript({FileChoice{"/data/behind.nam"}});
    play({ok});
    host().script().addToScript({FileChoice{}});
    QuorGUIDialogLaunch(dialog());
    EXPECT_EQ(GuestDialog::told, (Texts{"init", "ok", "file /data/before.nam", "ok",
                                        "file /data/behind.nam", "ok", "no file"}));
}

/// Counts what a window would have to draw.
class WatchingUser : public ScriptedUser {
public:
    Texts seen;
    void dialogShown(const Dialog_s& dialog) override { seen.push_back("shown " + dialog.title); }
    void dialogDropped(const Dialog_s&) override { seen.emplace_back("dropped"); }
    void pageShown(const Dialog_s&) override { seen.emplace_back("page"); }
    void controlChanged(const Dialog_s&, const Control_s& control) override {
        seen.push_back("changed " + control.caption);
    }
    void focusMoved(const Dialog_s&) override { seen.emplace_back("focus"); }
    void read(const std::string& text, bool isError) override {
        seen.push_back((isError ? "error " : "information ") + text);
    }
    void showHelp(const std::string& target) override { seen.push_back("help " + target); }
};

TEST_F(DialogLoopTest, UserSeesWhatChangesWhileTheDialogIsOpen) {
    WatchingUser user;
    host().setUser(&user);
    QuorGUIToggleSet(toggle_, 1); // nobody sees it yet
    GuestDialog::whenOk = [this] {
        QuorGUIToggleSet(toggle_, 0);
        QuorGUISetSensitivity(toggle_, false);
        QuorGUISetInputFocus(button_);
        QuorUtilDialogErrMsg("broken");
        QuorUtilDialogMessageBox("fine", QuorMessageBox_Information);
        QuorUtilHelp("page.html", false, 0);
    };
    user.addToScript({DialogStep([](const Dialog_s&) { return DialogMove_s{ok, "", false}; })});
    QuorGUIDialogLaunch(dialog());
    EXPECT_EQ(user.seen, (Texts{"shown Guest", "changed Swirl ", "changed Swirl ", "focus",
                                "error broken", "information fine", "help page.html", "dropped"}));
    host().setUser(nullptr);
}

} // namespace
} // namespace quorvia::host
