// The first page: what it shows, which controls can be used when, and what they store.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

class SelectionPage : public LoadDialogTest {
protected:
    /// Shows the page for what stands in gLoadOptions, without a user.
    static void refresh() {
        const HostLock lock(addOnID);
        refreshDialogPage(fileSelectionPage, gLoadOptions);
    }
    static std::vector<bool> areSensitive(const std::vector<std::int32_t>& controls) {
        std::vector<bool> sensitive;
        for (const std::int32_t id : controls)
            sensitive.push_back(isSensitive(id));
        return sensitive;
    }
    /// All three toggles of strands as they have to be for `addToStrandsToggle` to be usable.
    static void makeAddingToStrandsPossible() {
        gLoadOptions.append = true;
        gLoadOptions.solutionFiles = {"b.q"};
        gLoadOptions.style = Plot3DStyle_Classic;
        gLoadOptions.assignStrandIds = true;
        gLoadOptions.assignNewStrandIdForEachTimeStep = false;
    }
    static bool canAddToStrands() {
        refresh();
        return isSensitive(addToStrandsToggle);
    }
    static void makeStrandPerStepPossible() {
        gLoadOptions.uniformGridStructure = false;
        gLoadOptions.assignStrandIds = true;
        gLoadOptions.addToExistingStrands = false;
    }
    static bool canAssignStrandPerStep() {
        refresh();
        return isSensitive(newStrandPerStepToggle);
    }
};

TEST_F(SelectionPage, ShowsTheDefaultsAtTheFirstLaunch) {
    open();
    EXPECT_FALSE(isOn(appendToggle));
    EXPECT_TRUE(isOn(assignStrandToggle));
    EXPECT_TRUE(isOn(uniformGridToggle));
    EXPECT_TRUE(isOn(newStrandPerStepToggle));
    EXPECT_FALSE(isOn(addToStrandsToggle));
}

TEST_F(SelectionPage, ShowsTheFilesAndTheNameFile) {
    gLoadOptions.gridFiles = {"a.x", "b.x"};
    gLoadOptions.solutionFiles = {"a.q"};
    gLoadOptions.functionFiles = {"a.f", "b.f", "c.f"};
    gLoadOptions.nameFile = "n.nam";
    refresh();
    refresh(); // in place of what was shown
    EXPECT_EQ(items(gridList), (Texts{"a.x", "b.x"}));
    EXPECT_EQ(items(solutionList), Texts{"a.q"});
    EXPECT_EQ(items(functionList), (Texts{"a.f", "b.f", "c.f"}));
    EXPECT_EQ(text(nameFileField), "n.nam");
}

TEST_F(SelectionPage, ShowsEachToggleFromItsOwnFlag) {
    makeDataSet();
    const std::vector<std::pair<std::int32_t, bool Plot3DLoadOptions_s::*>> toggles = {
        {appendToggle, &Plot3DLoadOptions_s::append},
        {assignStrandToggle, &Plot3DLoadOptions_s::assignStrandIds},
        {uniformGridToggle, &Plot3DLoadOptions_s::uniformGridStructure},
        {addToStrandsToggle, &Plot3DLoadOptions_s::addToExistingStrands},
        {newStrandPerStepToggle, &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep}};
    for (const auto& shown : toggles) {
        for (const auto& [toggle, flag] : toggles)
            gLoadOptions.*flag = toggle == shown.first;
        refresh();
        for (const auto& [toggle, flag] : toggles)
            EXPECT_EQ(isOn(toggle), toggle == shown.first);
    }
}

TEST_F(SelectionPage, AppendIsUsableOnlyWithADataSet) {
    refresh();
    EXPECT_FALSE(isSensitive(appendToggle));
    makeDataSet();
    refresh();
    EXPECT_TRUE(isSensitive(appendToggle));
}

TEST_F(SelectionPage, StaleAppendIsClearedAtTheFirstRefresh) {
    gLoadOptions.append = true;
    gLoadOptions.addToExistingStrands = true;
    refresh();
    EXPECT_FALSE(gLoadOptions.append);
    EXPECT_FALSE(isOn(appendToggle));
    EXPECT_TRUE(gLoadOptions.addToExistingStrands) << "only the user's own click clears this one";
}

TEST_F(SelectionPage, AppendStaysWhileThereIsADataSet) {
    makeDataSet();
    gLoadOptions.append = true;
    refresh();
    EXPECT_TRUE(gLoadOptions.append);
    EXPECT_TRUE(isOn(appendToggle));
}

TEST_F(SelectionPage, RemoveSelectedIsNeverUsableAfterARefresh) {
    gLoadOptions.gridFiles = gLoadOptions.solutionFiles = gLoadOptions.functionFiles = {"a"};
    refresh();
    EXPECT_EQ(areSensitive({gridRemoveSelected, solutionRemoveSelected, functionRemoveSelected}),
              (std::vector<bool>{false, false, false}));
}

TEST_F(SelectionPage, RemoveAllIsUsableWhereThereAreFiles) {
    const std::vector<std::int32_t> buttons = {gridRemoveAll, solutionRemoveAll, functionRemoveAll};
    refresh();
    EXPECT_EQ(areSensitive(buttons), (std::vector<bool>{false, false, false}));
    gLoadOptions.gridFiles = {"a.x"};
    refresh();
    EXPECT_EQ(areSensitive(buttons), (std::vector<bool>{true, false, false}));
    gLoadOptions.gridFiles.clear();
    gLoadOptions.solutionFiles = {"a.q"};
    refresh();
    EXPECT_EQ(areSensitive(buttons), (std::vector<bool>{false, true, false}));
    gLoadOptions.functionFiles = {"a.f"};
    refresh();
    EXPECT_EQ(areSensitive(buttons), (std::vector<bool>{false, true, true}));
}

TEST_F(SelectionPage, NameFileIsUsableWithAGridFileAndSomethingToName) {
    const std::vector<std::int32_t> controls = {nameFileLabel, nameFileBrowse, nameFileField};
    const std::vector<bool> usable = {true, true, true};
    const std::vector<bool> greyed = {false, false, false};
    const auto with = [&](const Texts& grids, const Texts& solutions, const Texts& functions) {
        gLoadOptions.gridFiles = grids;
        gLoadOptions.solutionFiles = solutions;
        gLoadOptions.functionFiles = functions;
        refresh();
        return areSensitive(controls);
    };
    EXPECT_EQ(with({"a.x"}, {"a.q"}, {}), usable);
    EXPECT_EQ(with({"a.x"}, {}, {"a.f"}), usable);
    EXPECT_EQ(with({"a.x"}, {"a.q"}, {"a.f"}), usable);
    EXPECT_EQ(with({}, {"a.q"}, {"a.f"}), greyed);
    EXPECT_EQ(with({}, {}, {}), greyed);
}

TEST_F(SelectionPage, GridFileAloneLeavesTheNameFileGreyed) {
    gLoadOptions.gridFiles = {"a.x"};
    refresh();
    EXPECT_FALSE(isSensitive(nameFileField));
}

TEST_F(SelectionPage, NameFileWithoutGridFileIsShownGreyed) {
    retain({}, {"a.q"}, {}, "n.nam");
    open();
    EXPECT_FALSE(isSensitive(nameFileField));
    EXPECT_EQ(host().script().cancelledDialogs(), 1);
    gLoadOptions.nameFile = "n.nam";
    refresh();
    EXPECT_EQ(text(nameFileField), "n.nam");
}

TEST_F(SelectionPage, AddToStrandsNeedsAllOfFiveConditions) {
    makeDataSet();
    makeAddingToStrandsPossible();
    EXPECT_TRUE(canAddToStrands());
    gLoadOptions.append = false;
    EXPECT_FALSE(canAddToStrands());
    makeAddingToStrandsPossible();
    gLoadOptions.solutionFiles.clear();
    EXPECT_FALSE(canAddToStrands());
    makeAddingToStrandsPossible();
    gLoadOptions.style = Plot3DStyle_Function;
    EXPECT_FALSE(canAddToStrands());
    makeAddingToStrandsPossible();
    gLoadOptions.assignStrandIds = false;
    EXPECT_FALSE(canAddToStrands());
    makeAddingToStrandsPossible();
    gLoadOptions.assignNewStrandIdForEachTimeStep = true;
    EXPECT_FALSE(canAddToStrands());
}

TEST_F(SelectionPage, AddToStrandsTakesEveryStyleButFunction) {
    makeDataSet();
    makeAddingToStrandsPossible();
    for (const Plot3DStyle_e style : {Plot3DStyle_Overflow, Plot3DStyle_Swift}) {
        gLoadOptions.style = style;
        EXPECT_TRUE(canAddToStrands()) << style;
    }
}

TEST_F(SelectionPage, StrandPerStepNeedsAllOfThreeConditions) {
    makeStrandPerStepPossible();
    EXPECT_TRUE(canAssignStrandPerStep());
    gLoadOptions.uniformGridStructure = true;
    EXPECT_FALSE(canAssignStrandPerStep());
    makeStrandPerStepPossible();
    gLoadOptions.assignStrandIds = false;
    EXPECT_FALSE(canAssignStrandPerStep());
    makeStrandPerStepPossible();
    gLoadOptions.addToExistingStrands = true;
    EXPECT_FALSE(canAssignStrandPerStep());
}

TEST_F(SelectionPage, UniformGridsAreGreyedForExactlyOneGridFile) {
    const auto with = [](const Texts& grids) {
        gLoadOptions.gridFiles = grids;
        refresh();
        return isSensitive(uniformGridToggle);
    };
    EXPECT_FALSE(with({"a.x"}));
    EXPECT_TRUE(with({}));
    EXPECT_TRUE(with({"a.x", "b.x"}));
}

TEST_F(SelectionPage, OtherControlsAreAlwaysUsable) {
    const std::vector<std::int32_t> controls = {assignStrandToggle, gridAddFiles, buttonAt(1776),
                                                buttonAt(2531)};
    EXPECT_EQ(areSensitive(controls), (std::vector<bool>{true, true, true, true}));
    refresh();
    EXPECT_EQ(areSensitive(controls), (std::vector<bool>{true, true, true, true}));
}

TEST_F(SelectionPage, FunctionStyleIsHeededOnlyWhenThePageComesBack) {
    makeDataSet();
    gLoadOptions.append = true;
    gLoadOptions.autoDetect = false;
    gLoadOptions.assignNewStrandIdForEachTimeStep = false;
    retain({"a.x"}, {"a.q"});
    open({show(fileStructurePage), choose(styleMenu, 2),
          meanwhile([] { EXPECT_TRUE(isSensitive(addToStrandsToggle)); }), show(fileSelectionPage),
          meanwhile([] { EXPECT_FALSE(isSensitive(addToStrandsToggle)); })});
}

// ---- What the controls store --------------------------------------------------------------------

struct ToggleRow {
    const char* name;
    const std::int32_t& toggle;
    bool Plot3DLoadOptions_s::*flag;
};

class SelectionToggle : public SelectionPage, public ::testing::WithParamInterface<ToggleRow> {
protected:
    void SetUp() override {
        SelectionPage::SetUp();
        // All of the page's toggles are usable.
        makeDataSet();
        makeAddingToStrandsPossible();
        makeStrandPerStepPossible();
        gRetainedSolutionFiles = {"b.q"};
    }
};

TEST_P(SelectionToggle, StoresItsValueAndRefreshesThePage) {
    bool& flag = gLoadOptions.*GetParam().flag;
    for (const bool value : {true, false, true}) {
        flag = !value;
        const auto refreshes = [] { return host().callCount("QuorGUIListDeleteAllItems"); };
        open({meanwhile([&] { host().clearFaults(); }), set(GetParam().toggle, value),
              meanwhile([&] {
                  EXPECT_EQ(flag, value);
                  EXPECT_EQ(isOn(GetParam().toggle), value);
                  EXPECT_EQ(refreshes(), 3) << "one for each list of the page";
              })});
    }
}

TEST_P(SelectionToggle, LeavesTheOtherFlagsAlone) {
    const auto others = [](const Plot3DLoadOptions_s& options) {
        std::vector<bool> flags;
        for (const auto flag : {&Plot3DLoadOptions_s::append, &Plot3DLoadOptions_s::assignStrandIds,
                                &Plot3DLoadOptions_s::addToExistingStrands,
                                &Plot3DLoadOptions_s::uniformGridStructure,
                                &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep,
                                &Plot3DLoadOptions_s::isMultiGrid, &Plot3DLoadOptions_s::autoDetect,
                                &Plot3DLoadOptions_s::assignStrandIdsRequested})
            if (flag != GetParam().flag)
                flags.push_back(options.*flag);
        return flags;
    };
    const std::vector<bool> before = others(gLoadOptions);
    open({set(GetParam().toggle, !(gLoadOptions.*GetParam().flag))});
    EXPECT_EQ(others(gLoadOptions), before);
}

INSTANTIATE_TEST_SUITE_P(
    EachToggle, SelectionToggle,
    ::testing::Values(
        ToggleRow{"Append", appendToggle, &Plot3DLoadOptions_s::append},
        ToggleRow{"AssignStrand", assignStrandToggle, &Plot3DLoadOptions_s::assignStrandIds},
        ToggleRow{"AddToStrands", addToStrandsToggle, &Plot3DLoadOptions_s::addToExistingStrands},
        ToggleRow{"UniformGrid", uniformGridToggle, &Plot3DLoadOptions_s::uniformGridStructure},
        ToggleRow{"NewStrandPerStep", newStrandPerStepToggle,
                  &Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(SelectionPage, AppendSwitchedOffClearsAddingToStrandsEvenWhileThatIsGreyed) {
    makeDataSet();
    gLoadOptions.append = true;
    gLoadOptions.addToExistingStrands = true;
    open({meanwhile([] { EXPECT_FALSE(isSensitive(addToStrandsToggle)); }),
          set(appendToggle, false)});
    EXPECT_FALSE(gLoadOptions.addToExistingStrands);
    EXPECT_FALSE(isOn(addToStrandsToggle));
}

TEST_F(SelectionPage, AppendSwitchedOnLeavesAddingToStrands) {
    makeDataSet();
    gLoadOptions.addToExistingStrands = true;
    open({set(appendToggle, true)});
    EXPECT_TRUE(gLoadOptions.addToExistingStrands);
}

TEST_F(SelectionPage, TypedNameFileReplacesTheOneThatWasThere) {
    retain({"a.x"}, {"a.q"}, {}, "old.nam");
    open({type(nameFileField, "new.nam"),
          meanwhile([] { EXPECT_EQ(gLoadOptions.nameFile, "new.nam"); })});
}

TEST_F(SelectionPage, TypedNameFileAlwaysStands) {
    const auto typed = std::get<QuorGUITextCallback>(control(nameFileField).callback);
    EXPECT_TRUE(typed("new.nam"));
    EXPECT_TRUE(typed(""));
    EXPECT_EQ(gLoadOptions.nameFile, "");
}

class NameFileBrowse : public LoadDialogTest {
protected:
    void browse(const host::ScriptEntry& choice) {
        retain({"dir/a.x", "dir/b.x"}, {"a.q"}, {}, "old.nam");
        open({press(nameFileBrowse), choice, meanwhile([] {
                  shownName_ = text(nameFileField);
                  storedName_ = gLoadOptions.nameFile;
              })});
    }
    static inline std::string shownName_;
    static inline std::string storedName_;
};

TEST_F(NameFileBrowse, TakesTheChosenFile) {
    browse(pick({"dir/new.nam"}));
    EXPECT_EQ(shownName_, "dir/new.nam");
    EXPECT_EQ(storedName_, "dir/new.nam");
}

TEST_F(NameFileBrowse, CancelledLeavesTheName) {
    browse(pickNothing());
    EXPECT_EQ(shownName_, "old.nam");
    EXPECT_EQ(storedName_, "old.nam");
}

TEST_F(NameFileBrowse, ThatTheHostFailsLeavesTheName) {
    host().failCall("QuorUtilDialogGetFileName", 1);
    browse(pick({"dir/new.nam"}));
    EXPECT_EQ(storedName_, "old.nam");
}

/// Notes what the add-on asks files for.
class AskedUser : public host::ScriptedUser {
public:
    std::vector<host::FileRequest> requests;
    host::FileChoice chooseFiles(const host::FileRequest& request) override {
        requests.push_back(request);
        return ScriptedUser::chooseFiles(request);
    }
};

class FileRequests : public SelectionPage {
protected:
    host::FileRequest requestOf(std::int32_t button) {
        const HostLock lock(addOnID);
        host().setUser(&user_);
        std::get<QuorGUICallback>(control(button).callback)();
        host().setUser(nullptr);
        return user_.requests.back();
    }

private:
    AskedUser user_;
};

TEST_F(FileRequests, NameFileIsOneFileNextToTheFirstGridFile) {
    gLoadOptions.gridFiles = {"dir/a.x", "dir/b.x"};
    const host::FileRequest request = requestOf(nameFileBrowse);
    EXPECT_FALSE(request.severalFiles);
    EXPECT_EQ(request.kind, "Name");
    EXPECT_EQ(request.defaultName, "dir/a.x");
    EXPECT_EQ(request.filter, "*.nam");
}

TEST_F(FileRequests, NameFileWithoutGridFileHasNoDefault) {
    host().recordTranscript(true);
    EXPECT_EQ(requestOf(nameFileBrowse).defaultName, "");
    EXPECT_EQ(host().log().transcript[2],
              "QuorUtilDialogGetFileName(0, \"Name\", null, \"*.nam\") = false");
}

TEST_F(FileRequests, AddedFilesAreSeveralOfAnyName) {
    const std::vector<std::pair<std::int32_t, std::string>> buttons = {
        {gridAddFiles, "Grid"}, {buttonAt(1776), "Solution"}, {buttonAt(2531), "Function"}};
    for (const auto& [button, kind] : buttons) {
        const host::FileRequest request = requestOf(button);
        EXPECT_TRUE(request.severalFiles);
        EXPECT_EQ(request.kind, kind);
        EXPECT_EQ(request.filter, "*.*");
    }
}

} // namespace
} // namespace quorvia::quorutildataio
