#include "dialog/FileSelectionPage.h"

#include "dialog/DialogControls.h"
#include "dialog/FileLists.h"
#include "dialog/FileSelectionRefresh.h"
#include "dialog/OptionCallbacks.h"
#include "dialog/WithinMemory.h"

namespace quorvia::quorutildataio {

namespace {

template <bool Plot3DLoadOptions_s::*flag>
void storeFlagAndRefresh(const std::int32_t* value) {
    const HostLock lock(addOnID);
    gLoadOptions.*flag = *value != 0;
    refreshFileSelectionPage(gLoadOptions);
}

void appendToggled(const std::int32_t* value) {
    const HostLock lock(addOnID);
    gLoadOptions.append = *value != 0;
    if (!gLoadOptions.append)
        gLoadOptions.addToExistingStrands = false;
    refreshFileSelectionPage(gLoadOptions);
}

bool nameFileTyped(const char* text) {
    const HostLock lock(addOnID);
    return runWithinMemory([text] {
        gLoadOptions.nameFile = text;
        return true;
    });
}

/// False: cancelled.
bool browseForNameFile() {
    constexpr std::int32_t oneExistingFile = 0;
    const std::vector<std::string>& grids = gLoadOptions.gridFiles;
    HostString name;
    if (!QuorUtilDialogGetFileName(oneExistingFile, name.outArgument(), "Name",
                                   grids.empty() ? nullptr : grids.front().c_str(), "*.nam"))
        return false;
    gLoadOptions.nameFile = name.str();
    QuorGUITextFieldSetString(nameFileField, name.get());
    return true;
}

void nameFileBrowsed() {
    const HostLock lock(addOnID);
    // Cancelled, or told: the field stays as it was.
    static_cast<void>(runWithinMemory(browseForNameFile));
}

} // namespace

bool buildFileSelectionPage() {
    if (fileSelectionPage != noControl)
        return true;
    fileSelectionPage = QuorGUITabAddPage(loadTabs, "File Selection");
    if (fileSelectionPage == noControl)
        return false;
    PageBuilder page(fileSelectionPage);
    nameFileLabel = page.label(151, 2785, "Name File (Optional):");
    page.label(137, 2012, "Function File(s):");
    page.label(151, 1263, "Solution File(s):");
    page.label(151, 501, "Grid File(s):");
    appendToggle = page.toggle(178, 74, 3515, 121, "Append to Existing Data Set", appendToggled);
    uniformGridToggle =
        page.toggle(178, 207, 2979, 121, "Uniform Grid Structure",
                    storeFlagAndRefresh<&Plot3DLoadOptions_s::uniformGridStructure>);
    newStrandPerStepToggle =
        page.toggle(4586, 74, 5012, 121, "Assign New Strand IDs for Each Time Step",
                    storeFlagAndRefresh<&Plot3DLoadOptions_s::assignNewStrandIdForEachTimeStep>);
    assignStrandToggle = page.toggle(4586, 201, 3529, 121, "Assign Strand IDs for Zones",
                                     storeFlagAndRefresh<&Plot3DLoadOptions_s::assignStrandIds>);
    addToStrandsToggle =
        page.toggle(4586, 328, 3762, 121, "Add Zones to Existing Strands",
                    storeFlagAndRefresh<&Plot3DLoadOptions_s::addToExistingStrands>);
    buildGridFileList(page);
    buildSolutionFileList(page);
    buildFunctionFileList(page);
    nameFileField = page.textField(151, 2889, 7099, 144, nameFileTyped);
    nameFileBrowse = page.button(7401, 2889, 370, 144, "...", nameFileBrowsed);
    return page.isWhole();
}

} // namespace quorvia::quorutildataio
