#include "dialog/FileStructurePage.h"

#include "dialog/DialogControls.h"
#include "dialog/OptionCallbacks.h"
#include "dialog/PageBuilder.h"

namespace quorvia::quorutildataio {

namespace {

constexpr std::int32_t autoDetectItem = 1;
constexpr std::int32_t manuallyDescribeItem = 2;

void fileOrganizationChosen(const std::int32_t* item) {
    const HostLock lock(addOnID);
    gLoadOptions.autoDetect = *item == autoDetectItem;
    refreshFileStructurePage(gLoadOptions);
}

} // namespace

bool buildFileStructurePage() {
    if (fileStructurePage != noControl)
        return true;
    fileStructurePage = QuorGUITabAddPage(loadTabs, "File Structure");
    if (fileStructurePage == noControl)
        return false;
    PageBuilder page(fileStructurePage);
    page.frame(219, 1251, 9118, 588, "");
    dataStructureLabel = page.label(5231, 207, "Data Structure:");
    styleLabel = page.label(1167, 570, "Solution file style:");
    page.frame(233, 74, 9118, 1159, "File Organization");
    fileOrganizationRadio = page.radioBox(659, 190, 2361, 299, {"Auto Detect", "Manually Describe"},
                                          fileOrganizationChosen);
    styleMenu =
        page.optionMenu(1194, 674, 2650, 144, "Plot3D Classic,Plot3D Function,Overflow,Swift",
                        storeChoice<&Plot3DLoadOptions_s::style>);
    multiGridToggle = page.toggle(1194, 893, 1702, 121, "Multi-Grid",
                                  storeFlag<&Plot3DLoadOptions_s::isMultiGrid>);
    dataStructureRadio = page.radioBox(5245, 363, 1812, 709,
                                       {"1-D", "2-D", "3-D Planes", "3-D Whole", "Unstructured"},
                                       storeChoice<&Plot3DLoadOptions_s::dataStructure>);
    asciiDoubleToggle = page.toggle(576, 1378, 4971, 121, "Assume ASCII Files are Double Precision",
                                    storeFlag<&Plot3DLoadOptions_s::asciiIsDouble>);
    asciiIBlankToggle = page.toggle(576, 1522, 4119, 121, "Assume ASCII Files are I-Blanked",
                                    storeFlag<&Plot3DLoadOptions_s::asciiHasIBlank>);
    sameStructureToggle = page.toggle(576, 1678, 6811, 121,
                                      "Assume all Solution/Function Files have the same structure",
                                      storeFlag<&Plot3DLoadOptions_s::solutionsShareStructure>);
    return page.isWhole();
}

void refreshFileStructurePage(const Plot3DLoadOptions_s& options) {
    QuorGUIRadioBoxSetToggle(fileOrganizationRadio,
                             options.autoDetect ? autoDetectItem : manuallyDescribeItem);
    QuorGUIOptionMenuSet(styleMenu, options.style + 1);
    QuorGUIToggleSet(multiGridToggle, options.isMultiGrid);
    QuorGUIToggleSet(asciiIBlankToggle, options.asciiHasIBlank);
    QuorGUIToggleSet(sameStructureToggle, options.solutionsShareStructure);
    QuorGUIRadioBoxSetToggle(dataStructureRadio, options.dataStructure + 1);
    QuorGUIToggleSet(asciiDoubleToggle, options.asciiIsDouble);
    for (const std::int32_t control :
         {styleLabel, dataStructureLabel, styleMenu, multiGridToggle, dataStructureRadio})
        QuorGUISetSensitivity(control, !options.autoDetect);
}

} // namespace quorvia::quorutildataio
