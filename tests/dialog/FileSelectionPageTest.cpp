// The first page: what it shows, and which controls can be used when.
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
    EXPECT_EQ(with({"a.x"}, {}, {}), greyed);
    EXPECT_EQ(with({}, {"a.q"}, {"a.f"}), greyed);
    EXPECT_EQ(with({}, {}, {}), greyed);
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

} // namespace
} // namespace quorvia::quorutildataio
