// The dialog's controls, row by row: kind, caption with its blanks, place, order, and which of them
// the add-on keeps for later.
#include "dialog/LoadDialogFixture.h"

namespace quorvia::quorutildataio {
namespace {

using DialogLayout = LoadDialogTest;

/// Kind, caption, items, place and size in one line.
std::string lineOf(const Control& control) {
    std::string line(wordFor(control.kind));
    line += control.allowsSeveral ? " of several [" : " [";
    line += control.caption;
    for (const std::string& item : control.items)
        line += item + '|';
    line += ']';
    const host::Geometry& place = control.geometry;
    for (const std::int32_t number : {place.x, place.y, place.width, place.height})
        line += ' ' + std::to_string(number);
    return line;
}

Texts linesOf(const host::Dialog& dialog, std::int32_t page) {
    Texts lines;
    for (const Control& control : dialog.controls)
        if (control.parent == page)
            lines.push_back(lineOf(control));
    return lines;
}

/// The position of a control on its page, from 0; -1 if it is not there.
int rowOf(const host::Dialog& dialog, std::int32_t page, std::int32_t id) {
    int row = 0;
    for (const Control& control : dialog.controls) {
        if (control.id == id)
            return control.parent == page ? row : -1;
        row += control.parent == page ? 1 : 0;
    }
    return -1;
}

struct KeptControl {
    const char* name;
    const std::int32_t& id;
    int row; // on its page, from 0
};

void expectRows(const host::Dialog& dialog, std::int32_t page,
                const std::vector<KeptControl>& kept) {
    for (const KeptControl& control : kept)
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
    const host::TabControl& tabs = *dialog().tabs;
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

TEST_F(DialogLayout, FileSelectionPageIsMadeRowByRow) {
    EXPECT_EQ(linesOf(dialog(), fileSelectionPage),
              (Texts{
                  "label [Name File (Optional):] 151 2785 0 0",
                  "label [Function File(s):] 137 2012 0 0",
                  "label [Solution File(s):] 151 1263 0 0",
                  "label [Grid File(s):] 151 501 0 0",
                  "toggle [Append to Existing Data Set] 178 74 3515 121",
                  "toggle [Uniform Grid Structure] 178 207 2979 121",
                  "toggle [Assign New Strand IDs for Each Time Step] 4586 74 5012 121",
                  "toggle [Assign Strand IDs for Zones] 4586 201 3529 121",
                  "toggle [Add Zones to Existing Strands] 4586 328 3762 121",
                  "list of several [] 137 611 7140 599",
                  "button [Remove Selected] 7387 634 1991 144",
                  "button [Remove All           ] 7387 824 2018 144",
                  "button [Add Files...           ] 7387 1015 1977 144",
                  "list of several [] 137 1372 7140 599",
                  "button [Remove Selected] 7387 1401 1991 144",
                  "button [Remove All           ] 7387 1591 2018 144",
                  "button [Add Files...           ] 7387 1776 1977 144",
                  "list of several [] 137 2128 7140 599",
                  "button [Remove Selected] 7387 2139 1991 144",
                  "button [Remove All           ] 7387 2335 2018 144",
                  "button [Add Files...           ] 7387 2531 1977 144",
                  "textField [] 151 2889 7099 144",
                  "button [...] 7401 2889 370 144",
              }));
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

TEST_F(DialogLayout, FileStructurePageIsMadeRowByRow) {
    EXPECT_EQ(
        linesOf(dialog(), fileStructurePage),
        (Texts{
            "frame [] 219 1251 9118 588",
            "label [Data Structure:] 5231 207 0 0",
            "label [Solution file style:] 1167 570 0 0",
            "frame [File Organization] 233 74 9118 1159",
            "radioBox [Auto Detect|Manually Describe|] 659 190 2361 299",
            "optionMenu [Plot3D Classic|Plot3D Function|Overflow|Swift|] 1194 674 2650 144",
            "toggle [Multi-Grid] 1194 893 1702 121",
            "radioBox [1-D|2-D|3-D Planes|3-D Whole|Unstructured|] 5245 363 1812 709",
            "toggle [Assume ASCII Files are Double Precision] 576 1378 4971 121",
            "toggle [Assume ASCII Files are I-Blanked] 576 1522 4119 121",
            "toggle [Assume all Solution/Function Files have the same structure] 576 1678 6811 121",
        }));
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

TEST_F(DialogLayout, DataSubsetPageIsMadeRowByRow) {
    EXPECT_EQ(linesOf(dialog(), dataSubsetPage),
              (Texts{
                  "frame [I-Index] 384 196 8857 403",
                  "frame [K-Index] 384 1153 8857 403",
                  "frame [J-Index] 384 674 8857 403",
                  "frame [Grids Loaded (From Each Solution)] 384 1626 8857 403",
                  "label [Start:] 631 392 0 0",
                  "label [End:] 3309 392 0 0",
                  "label [Skip:] 5836 392 0 0",
                  "label [Start:] 686 899 0 0",
                  "label [End:] 3378 899 0 0",
                  "label [Skip:] 5891 899 0 0",
                  "label [Start:] 631 1355 0 0",
                  "label [End:] 3309 1355 0 0",
                  "label [Skip:] 5836 1355 0 0",
                  "label [Grid Set:] 590 1764 0 0",
                  "label [Example:  1-5,7,12] 5355 1776 0 0",
                  "textField [] 1441 380 1235 144",
                  "textField [] 4050 380 1235 144",
                  "textField [] 6605 380 1235 144",
                  "textField [] 1510 882 1235 144",
                  "textField [] 4105 882 1235 144",
                  "textField [] 6673 882 1235 144",
                  "textField [] 1483 1343 1235 144",
                  "textField [] 4078 1343 1235 144",
                  "textField [] 6632 1343 1235 144",
                  "textField [] 2046 1753 2293 144",
              }));
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
    EXPECT_EQ(linesOf(dialog(), loadDialog), Texts());
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
