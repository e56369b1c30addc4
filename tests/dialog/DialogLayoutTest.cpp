// The dialog with its tabs and pages, and which controls the add-on keeps for later. Kind, caption
// and place of each control are told by the table in acceptance/dialog/LayoutTest.cpp, of the
// built library.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

using DialogLayout = LoadDialogTest;

/// The position of a control on its page, from 0; -1 if it is not there.
int rowOf(const host::Dialog_s& dialog, std::int32_t page, std::int32_t id) {
    int row = 0;
    for (const Control_s& control : dialog.controls) {
        if (control.id == id)
            return control.parent == page ? row : -1;
        row += control.parent == page ? 1 : 0;
    }
    return -1;
}

struct KeptControl_s {
    const char* name;
    const std::int32_t& id;
    int row; // on its page, from 0
};

void expectRows(const host::Dialog_s& dialog, std::int32_t page,
                const std::vector<KeptControl_s>& kept) {
    for (const KeptControl_s& control : kept)
        EXPECT_EQ(rowOf(dialog, page, control.id), control.row) << control.name;
}

TEST_F(DialogLayout, DialogIsModalUnderTheMainWindowWithoutApply) {
    EXPECT_EQ(dialog().title, "Plot3D Loader");
    EXPECT_EQ(dialog().parent, QuorGUIId_MainWindow);
    EXPECT_EQ(dialog().width, 10015);
    EXPECT_EQ(dialog().height, 3397);
    for (const QuorGUICallback callback :
         {dialog().init, dialog().ok, dialog().cancel, dialog().help})
        EXPECT_NE(callback, nullptr);
    EXPECT_EQ(dialog().apply, nullptr);
    EXPECT_FALSE(dialog().open);
}

TEST_F(DialogLayout, TabControlHoldsThreePagesInTheirOrder) {
    const host::TabControl_s& tabs = *dialog().tabs;
    EXPECT_EQ(tabs.id, loadTabs);
    EXPECT_EQ(tabs.geometry.x, 219);
    EXPECT_EQ(tabs.geometry.y, 224);
    EXPECT_EQ(tabs.geometry.width, 9639);
    EXPECT_EQ(tabs.geometry.height, 3143);
    ASSERT_EQ(tabs.pages.size(), 3u);
    EXPECT_EQ(tabs.pages[0].caption, "File Selection");
    EXPECT_EQ(tabs.pages[1].caption, "File Structure");
    EXPECT_EQ(tabs.pages[2].caption, "Data Subset");
    EXPECT_EQ(tabs.pages[0].id, fileSelectionPage);
    EXPECT_EQ(tabs.pages[1].id, fileStructurePage);
    EXPECT_EQ(tabs.pages[2].id, dataSubsetPage);
}

TEST_F(DialogLayout, FileSelectionPageKeepsItsControls) {
    expectRows(dialog(), fileSelectionPage,
               {{"nameFileLabel", nameFileLabel, 0},
                {"appendToggle", appendToggle, 4},
                {"uniformGridToggle", uniformGridToggle, 5},
                {"newStrandPerStepToggle", newStrandPerStepToggle, 6},
                {"assignStrandToggle", assignStrandToggle, 7},
                {"addToStrandsToggle", addToStrandsToggle, 8},
                {"gridList", gridList, 9},
                {"gridRemoveSelected", gridRemoveSelected, 10},
                {"gridRemoveAll", gridRemoveAll, 11},
                {"gridAddFiles", gridAddFiles, 12},
                {"solutionList", solutionList, 13},
                {"solutionRemoveSelected", solutionRemoveSelected, 14},
                {"solutionRemoveAll", solutionRemoveAll, 15},
                {"functionList", functionList, 17},
                {"functionRemoveSelected", functionRemoveSelected, 18},
                {"functionRemoveAll", functionRemoveAll, 19},
                {"nameFileField", nameFileField, 21},
                {"nameFileBrowse", nameFileBrowse, 22}});
}

TEST_F(DialogLayout, FileStructurePageKeepsItsControls) {
    expectRows(dialog(), fileStructurePage,
               {{"dataStructureLabel", dataStructureLabel, 1},
                {"styleLabel", styleLabel, 2},
                {"fileOrganizationRadio", fileOrganizationRadio, 4},
                {"styleMenu", styleMenu, 5},
                {"multiGridToggle", multiGridToggle, 6},
                {"dataStructureRadio", dataStructureRadio, 7},
                {"asciiDoubleToggle", asciiDoubleToggle, 8},
                {"asciiIBlankToggle", asciiIBlankToggle, 9},
                {"sameStructureToggle", sameStructureToggle, 10}});
}

TEST_F(DialogLayout, DataSubsetPageKeepsItsControls) {
    expectRows(dialog(), dataSubsetPage,
               {{"iStartField", iStartField, 15},
                {"iEndField", iEndField, 16},
                {"iSkipField", iSkipField, 17},
                {"jStartField", jStartField, 18},
                {"jEndField", jEndField, 19},
                {"jSkipField", jSkipField, 20},
                {"kStartField", kStartField, 21},
                {"kEndField", kEndField, 22},
                {"kSkipField", kSkipField, 23},
                {"gridSetField", gridSetField, 24}});
}

TEST_F(DialogLayout, NothingStandsBesideThePages) {
    for (const Control_s& control : dialog().controls)
        EXPECT_NE(control.parent, loadDialog) << control.caption;
}

TEST_F(DialogLayout, DialogIsMadeOnce) {
    const std::int32_t made = loadDialog;
    const std::size_t controlCount = dialog().controls.size();
    const HostLock lock(addOnID);
    createLoadDialog();
    EXPECT_EQ(loadDialog, made);
    EXPECT_EQ(dialog().controls.size(), controlCount);
    EXPECT_EQ(host().callCount("QuorGUIDialogCreateModal"), 0);
}

/// The dialog is not there yet, and the host refuses to make one of its things.
class DialogThatCannotBeMade : public testsupport::AddOnTest,
                               public ::testing::WithParamInterface<const char*> {
protected:
    static void create() {
        const HostLock lock(addOnID);
        createLoadDialog();
    }
    static bool isNothingMade() {
        for (const std::int32_t id :
             {loadDialog, loadTabs, fileSelectionPage, fileStructurePage, dataSubsetPage})
            if (id != noControl)
                return false;
        return true;
    }
};

TEST_P(DialogThatCannotBeMade, IsToldAndMadeWholeTheNextTime) {
    create();
    const std::int64_t count = host().callCount(GetParam());
    ASSERT_GT(count, 0);
    for (std::int64_t n = 1; n <= count; ++n) {
        SetUp();
        host().failCall(GetParam(), n);
        create();
        EXPECT_TRUE(isNothingMade()) << n;
        EXPECT_EQ(messages(), Texts{"Out of Memory!!!"}) << n;
        create();
        EXPECT_NE(loadDialog, noControl) << n;
        EXPECT_EQ(messages().size(), 1u) << n;
    }
}

TEST_P(DialogThatCannotBeMade, IsNotLaunchedByTheFileSelection) {
    constexpr bool advanced = true;
    constexpr bool append = true;
    host().failCall(GetParam(), 1);
    host().importSelection({"a.x"}, advanced, !append);
    EXPECT_EQ(host().callCount("QuorGUIDialogLaunch"), 0);
    EXPECT_EQ(host().callCount("QuorGUISetInputFocus"), 0);
    host().importSelection({"a.x"}, advanced, !append);
    EXPECT_EQ(host().callCount("QuorGUIDialogLaunch"), 1);
    EXPECT_EQ(host().callCount("QuorGUISetInputFocus"), 1);
}

INSTANTIATE_TEST_SUITE_P(EachThing, DialogThatCannotBeMade,
                         ::testing::Values("QuorGUIDialogCreateModal", "QuorGUITabAdd",
                                           "QuorGUITabAddPage", "QuorGUIFrameAdd",
                                           "QuorGUILabelAdd", "QuorGUIToggleAdd",
                                           "QuorGUIButtonAdd", "QuorGUIListAdd",
                                           "QuorGUITextFieldAdd", "QuorGUIRadioBoxAdd",
                                           "QuorGUIOptionMenuAdd"),
                         [](const auto& operation) { return std::string(operation.param); });

} // namespace
} // namespace quorvia::quorutildataio
