// A launch from its beginning to its end: what the dialog starts from, what survives it, the
// dialog's own buttons, and the lock over all of it.
#include <algorithm>

#include "addon/LoaderCallbacks.h"
#include "dialog/LoadDialogFixture.h"
#include "support/AllocationFaults.h"

namespace quorvia::quorutildataio {
namespace {

class DialogLaunch : public LoadDialogTest {
protected:
    static bool holds(const Texts& calls, const std::string& beginning) {
        return std::any_of(calls.begin(), calls.end(),
                           [&](const std::string& call) { return call.find(beginning) == 0; });
    }
};

TEST_F(DialogLaunch, StartsFromTheFilesThatWerePicked) {
    importFiles({"a.q", "b.x", "c.f", "a.x", "n.nam"}, {meanwhile([] {
                    EXPECT_EQ(items(gridList), (Texts{"b.x", "a.x"}));
                    EXPECT_EQ(items(solutionList), Texts{"a.q"});
                    EXPECT_EQ(items(functionList), Texts{"c.f"});
                    EXPECT_EQ(text(nameFileField), "n.nam");
                    EXPECT_EQ(gLoadOptions.gridFiles, (Texts{"b.x", "a.x"}));
                    EXPECT_EQ(gLoadOptions.nameFile, "n.nam");
                })});
}

TEST_F(DialogLaunch, ForgetsTheFilesOfTheLaunchBefore) {
    importFiles({"a.x", "a.q", "a.f", "n.nam"});
    importFiles({"b.q"}, {meanwhile([] {
                    EXPECT_EQ(items(gridList), Texts());
                    EXPECT_EQ(items(solutionList), Texts{"b.q"});
                    EXPECT_EQ(items(functionList), Texts());
                    EXPECT_EQ(text(nameFileField), "");
                })});
}

TEST_F(DialogLaunch, EmptiesWhatALoadHasLeftInTheRecord) {
    gLoadOptions.gridFiles = gLoadOptions.solutionFiles = gLoadOptions.functionFiles = {"left"};
    gLoadOptions.nameFile = "left.nam";
    open({meanwhile([] {
        for (const std::int32_t list : {gridList, solutionList, functionList})
            EXPECT_EQ(items(list), Texts());
        EXPECT_EQ(text(nameFileField), "");
    })});
}

TEST_F(DialogLaunch, WithOneGridFileGreysUniformGridsAndWithNoneLeavesThem) {
    importFiles({"a.x"}, {meanwhile([] { EXPECT_FALSE(isSensitive(uniformGridToggle)); })});
    importFiles({"a.q"}, {meanwhile([] { EXPECT_TRUE(isSensitive(uniformGridToggle)); })});
}

TEST_F(DialogLaunch, ComesBackAsItWasLeft) {
    importFiles({"a.x"}, {set(assignStrandToggle, false), show(fileStructurePage),
                          choose(fileOrganizationRadio, 2), choose(styleMenu, 3),
                          choose(dataStructureRadio, 5), set(multiGridToggle, false),
                          set(asciiDoubleToggle, true), show(dataSubsetPage),
                          type(jStartField, "7"), show(fileSelectionPage), pressCancel()});
    importFiles({"b.x"},
                {meanwhile([] { EXPECT_FALSE(isOn(assignStrandToggle)); }), show(fileStructurePage),
                 meanwhile([] {
                     EXPECT_EQ(chosen(fileOrganizationRadio), 2);
                     EXPECT_EQ(chosen(styleMenu), 3);
                     EXPECT_EQ(chosen(dataStructureRadio), 5);
                     EXPECT_FALSE(isOn(multiGridToggle));
                     EXPECT_TRUE(isOn(asciiDoubleToggle));
                 }),
                 show(dataSubsetPage), meanwhile([] { EXPECT_EQ(text(jStartField), "7"); })});
}

TEST_F(DialogLaunch, RefreshesTheFirstPageAloneAndTheOthersWhenTheyComeToTheFront) {
    open({meanwhile([] {
              EXPECT_EQ(host().callCount("QuorGUIListDeleteAllItems"), 3);
              EXPECT_EQ(host().callCount("QuorGUIRadioBoxSetToggle"), 0);
              EXPECT_EQ(host().callCount("QuorGUITextFieldSetLgIndex"), 0);
          }),
          show(fileStructurePage), meanwhile([] {
              EXPECT_EQ(host().callCount("QuorGUIRadioBoxSetToggle"), 2);
              EXPECT_EQ(host().callCount("QuorGUITextFieldSetLgIndex"), 0);
          }),
          show(dataSubsetPage), meanwhile([] {
              EXPECT_EQ(host().callCount("QuorGUITextFieldSetLgIndex"), 9);
              EXPECT_EQ(host().callCount("QuorGUIListDeleteAllItems"), 3);
          }),
          show(fileSelectionPage),
          meanwhile([] { EXPECT_EQ(host().callCount("QuorGUIListDeleteAllItems"), 6); })});
}

TEST_F(DialogLaunch, NoticeThatFilesAreForgottenEmptiesOneRememberedList) {
    retain({"a.x"}, {"a.q"}, {"a.f"}, "n.nam");
    host().sendStateChange(15);
    EXPECT_EQ(gRetainedGridFiles, Texts{"a.x"});
    EXPECT_EQ(gRetainedSolutionFiles, Texts());
    EXPECT_EQ(gRetainedFunctionFiles, Texts{"a.f"});
    EXPECT_EQ(gRetainedNameFile, "n.nam");
}

// ---- Making, focus and launch
// -------------------------------------------------------------------

TEST_F(DialogLaunch, FocusComesBetweenMakingAndLaunching) {
    loadDialog = loadTabs = fileSelectionPage = fileStructurePage = dataSubsetPage = noControl;
    host().recordTranscript(true);
    importFiles({"a.x"});
    Texts order;
    for (const std::string& call : host().log().transcript)
        for (const char* operation : {"QuorGUIDialogCreateModal", "QuorGUITextFieldAdd",
                                      "QuorGUISetInputFocus", "QuorGUIDialogLaunch"})
            if (call.find(operation) == 0 && (order.empty() || order.back() != operation))
                order.emplace_back(operation);
    EXPECT_EQ(order, (Texts{"QuorGUIDialogCreateModal", "QuorGUITextFieldAdd",
                            "QuorGUISetInputFocus", "QuorGUIDialogLaunch"}));
    EXPECT_EQ(dialog().focus, gridAddFiles);
}

TEST_F(DialogLaunch, OfADialogThatWasThereMovesNoFocus) {
    importFiles({"a.x"});
    EXPECT_EQ(host().callCount("QuorGUISetInputFocus"), 0);
}

// ---- When memory runs out
// ----------------------------------------------------------------------

TEST_F(DialogLaunch, WithoutMemoryForTheFilesIsToldAndShowsThePage) {
    retain({"a grid file with a long name.x"});
    const HostLock lock(addOnID);
    const QuorGUICallback init = dialog().init;
    testsupport::failNextAllocation();
    init();
    QuorUtilLockFinish(addOnID);
    EXPECT_FALSE(testsupport::cancelAllocationFault());
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_EQ(items(gridList), Texts());
}

TEST_F(DialogLaunch, NameThatThereIsNoMemoryForDoesNotStand) {
    const auto typed = std::get<QuorGUITextCallback>(control(nameFileField).callback);
    testsupport::failNextAllocation();
    EXPECT_FALSE(typed("a name file with a long name.nam"));
    EXPECT_EQ(messages(), Texts{"Out of Memory!!!"});
    EXPECT_EQ(gLoadOptions.nameFile, "");
}

// ---- The dialog's own buttons
// -------------------------------------------------------------------

TEST_F(DialogLaunch, CancelEmptiesAllButTheFunctionFiles) {
    importFiles({"a.x", "a.q", "a.f", "n.nam"}, {pressCancel()});
    EXPECT_EQ(gLoadOptions.gridFiles, Texts());
    EXPECT_EQ(gLoadOptions.solutionFiles, Texts());
    EXPECT_EQ(gLoadOptions.functionFiles, Texts{"a.f"});
    EXPECT_EQ(gLoadOptions.nameFile, "");
    EXPECT_EQ(text(nameFileField), "");
    EXPECT_FALSE(dialog().open);
    EXPECT_EQ(host().callCount("createTaskProgressBar"), 0);
}

TEST_F(DialogLaunch, CancelLeavesWhatIsRemembered) {
    importFiles({"a.x", "a.q", "a.f", "n.nam"}, {press(gridRemoveAll), pressCancel()});
    EXPECT_EQ(gRetainedGridFiles, Texts{"a.x"});
    EXPECT_EQ(gRetainedSolutionFiles, Texts{"a.q"});
    EXPECT_EQ(gRetainedFunctionFiles, Texts{"a.f"});
    EXPECT_EQ(gRetainedNameFile, "n.nam");
}

TEST_F(DialogLaunch, FunctionFilesThatOutlivedACancelAreGoneAtTheNextLaunch) {
    open({press(buttonAt(2531)), pick({"a.f"}), pressCancel()});
    EXPECT_EQ(gLoadOptions.functionFiles, Texts{"a.f"});
    open({meanwhile([] { EXPECT_EQ(gLoadOptions.functionFiles, Texts()); })});
}

TEST_F(DialogLaunch, HelpOpensThePageOfTheLoader) {
    open({pressHelp(), meanwhile([] { EXPECT_TRUE(dialog().open); })});
    EXPECT_EQ(host().log().helpTargets, Texts{"data-loading.html#data-loading/plot3d"});
}

// ---- The lock
// -----------------------------------------------------------------------------------

TEST_F(DialogLaunch, LockSpansTheTimeThatTheDialogIsUp) {
    importFiles({"a.x"}, {meanwhile([] { EXPECT_EQ(host().lockDepth(), 2); }), pressCancel()});
    EXPECT_EQ(host().lockDepth(), 0);
}

/// Calls every callback of the dialog's controls, pages and Help, and looks at the calls that
/// it makes in turn.
class CallbackLock : public DialogLaunch {
protected:
    void SetUp() override {
        DialogLaunch::SetUp();
        QuorUtilLockStart(addOnID);
        QuorUtilLockStart(addOnID);
        refreshDialogPage(dataSubsetPage, gLoadOptions);
    }
    void TearDown() override {
        while (host().lockDepth() > 0)
            QuorUtilLockFinish(addOnID);
        DialogLaunch::TearDown();
    }
    static void call(const host::ControlCallback& callback) {
        constexpr std::int32_t value = 1;
        if (const auto* pressed = std::get_if<QuorGUICallback>(&callback))
            (*pressed)();
        else if (const auto* changed = std::get_if<QuorGUIValueCallback>(&callback))
            (*changed)(&value);
        else if (const auto* typed = std::get_if<QuorGUITextCallback>(&callback))
            (*typed)("1");
    }
    static Texts callsOf(const host::ControlCallback& callback) {
        host().recordTranscript(true);
        call(callback);
        return host().log().transcript;
    }
    static void expectBracketed(const Texts& calls, const std::string& story) {
        ASSERT_GE(calls.size(), 2u) << story;
        EXPECT_EQ(calls.front().find("QuorUtilLockStart("), 0u) << story;
        EXPECT_EQ(calls.back().find("QuorUtilLockFinish("), 0u) << story;
    }
};

TEST_F(CallbackLock, OpensAndEndsEveryControlCallbackButOne) {
    int count = 0;
    for (const Control_s& control : dialog().controls) {
        if (std::holds_alternative<std::monostate>(control.callback) || control.id == kEndField)
            continue;
        const std::int64_t before = host().lockDepth();
        expectBracketed(callsOf(control.callback), std::string(wordFor(control.kind)) + ' ' +
                                                       control.caption + ' ' +
                                                       std::to_string(control.geometry.y));
        EXPECT_EQ(host().lockDepth(), before) << control.caption << control.geometry.y;
        ++count;
    }
    EXPECT_EQ(count, 19 + 7 + 9);
}

TEST_F(CallbackLock, IsFinishedButNotStartedByTheLastEnd) {
    const Texts calls = callsOf(control(kEndField).callback);
    EXPECT_FALSE(holds(calls, "QuorUtilLockStart("));
    EXPECT_EQ(calls.back().find("QuorUtilLockFinish("), 0u);
    EXPECT_EQ(host().lockDepth(), 1);
}

TEST_F(CallbackLock, OpensAndEndsPagesAndHelp) {
    const host::TabControl_s& tabs = *dialog().tabs;
    expectBracketed(callsOf(tabs.activate), "activated");
    expectBracketed(callsOf(dialog().help), "help");
    const Texts deactivated = callsOf(tabs.deactivate);
    expectBracketed(deactivated, "deactivated");
    EXPECT_EQ(deactivated.size(), 2u) << "nothing beyond the lock";
    EXPECT_EQ(host().lockDepth(), 2);
}

TEST_F(CallbackLock, IsStartedByInitAlone) {
    const Texts calls = callsOf(dialog().init);
    EXPECT_EQ(calls.front().find("QuorUtilLockStart("), 0u);
    EXPECT_FALSE(holds(calls, "QuorUtilLockFinish("));
    EXPECT_EQ(host().lockDepth(), 3);
}

TEST_F(CallbackLock, IsFinishedByCancelWithoutAStart) {
    host().clearFaults();
    open({meanwhile([] { host().recordTranscript(true); }), pressCancel()});
    const Texts& calls = host().log().transcript;
    EXPECT_FALSE(holds(calls, "QuorUtilLockStart("));
    EXPECT_TRUE(holds(calls, "QuorUtilLockFinish("));
    EXPECT_EQ(host().lockDepth(), 2);
}

} // namespace
} // namespace quorvia::quorutildataio
