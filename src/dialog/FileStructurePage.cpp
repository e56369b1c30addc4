#include "dialog/FileStructurePage.h"

#include <array>
#include <string>

#include "dialog/DialogControls.h"
#include "dialog/OptionCallbacks.h"
#include "dialog/PageBuilder.h"
#include "instructions/InstructionWords.h"

namespace quorvia::quorutildataio {

namespace {

/// The captions of a table of words, in its order.
template <typename Value, std::size_t count>
std::array<const char*, count> captionsOf(const InstructionWord_s<Value> (&words)[count]) {
    std::array<const char*, count> captions{};
    for (std::size_t place = 0; place < count; ++place)
        captions[place] = words[place].caption;
    return captions;
}

/// The same as an option menu takes them.
template <typename Words>
std::string menuOf(const Words& words) {
    std::string menu;
    for (const auto& word : words)
        menu += (menu.empty() ? "" : ",") + std::string(word.caption);
    return menu;
}

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
    styleMenu = page.optionMenu(1194, 674, 2650, 144, menuOf(styleWords).c_str(),
                                storeChoice<&Plot3DLoadOptions_s::style>);
    multiGridToggle = page.toggle(1194, 893, 1702, 121, "Multi-Grid",
                                  storeFlag<&Plot3DLoadOptions_s::isMultiGrid>);
    dataStructureRadio = page.radioBox(5245, 363, 1812, 709, captionsOf(dataStructureWords),
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
