#include "dialog/LoadDialog.h"

#include "dialog/DataSubsetPage.h"
#include "dialog/DialogControls.h"
#include "dialog/DialogLock.h"
#include "dialog/DialogOk.h"
#include "dialog/FileSelectionPage.h"
#include "dialog/FileSelectionRefresh.h"
#include "dialog/FileStructurePage.h"
#include "dialog/WithinMemory.h"
#include "quorvia/HostHandles.h"
#include "quorvia/QuorGUI.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

bool takeRetainedFiles() {
    gLoadOptions.nameFile = gRetainedNameFile;
    gLoadOptions.gridFiles = gRetainedGridFiles;
    gLoadOptions.solutionFiles = gRetainedSolutionFiles;
    gLoadOptions.functionFiles = gRetainedFunctionFiles;
    return true;
}

/// So that nothing of the launch before is left if there is no memory for the new files.
void emptyFiles() {
    gLoadOptions.nameFile.clear();
    gLoadOptions.gridFiles.clear();
    gLoadOptions.solutionFiles.clear();
    gLoadOptions.functionFiles.clear();
}

void dialogLaunched() {
    startDialogLock();
    emptyFiles();
    // Told: the dialog shows the files that there was memory for.
    static_cast<void>(runWithinMemory(takeRetainedFiles));
    refreshDialogPage(fileSelectionPage, gLoadOptions);
}

// The function files stay: the next launch empties them.
void cancelPressed() {
    const DialogLockEnd lock;
    gLoadOptions.gridFiles.clear();
    gLoadOptions.solutionFiles.clear();
    gLoadOptions.nameFile.clear();
    QuorGUITextFieldSetString(nameFileField, "");
    QuorGUIDialogDrop(loadDialog);
}

void helpPressed() {
    const HostLock lock(addOnID);
    QuorUtilHelp("data-loading.html#data-loading/plot3d", false, 0);
}

void pageActivated(const std::int32_t* page) {
    const HostLock lock(addOnID);
    refreshDialogPage(*page, gLoadOptions);
}

void pageDeactivated(const std::int32_t*) {
    const HostLock lock(addOnID);
}

bool buildLoadDialog() {
    loadDialog =
        QuorGUIDialogCreateModal(QuorGUIId_MainWindow, 10015, 3397, "Plot3D Loader", dialogLaunched,
                                 okPressed, nullptr, cancelPressed, helpPressed);
    if (loadDialog == noControl)
        return false;
    loadTabs = QuorGUITabAdd(loadDialog, 219, 224, 9639, 3143, pageActivated, pageDeactivated);
    return loadTabs != noControl && buildFileSelectionPage() && buildFileStructurePage() &&
           buildDataSubsetPage();
}

} // namespace

void createLoadDialog() {
    if (loadDialog != noControl || buildLoadDialog())
        return;
    // The next launch makes another one, since a dialog with missing controls is of no use.
    for (std::int32_t* id :
         {&loadDialog, &loadTabs, &fileSelectionPage, &fileStructurePage, &dataSubsetPage})
        *id = noControl;
    QuorUtilDialogErrMsg("Out of Memory!!!");
}

void refreshDialogPage(std::int32_t page, Plot3DLoadOptions_s& options) {
    if (page == fileSelectionPage)
        refreshFileSelectionPage(options);
    else if (page == fileStructurePage)
        refreshFileStructurePage(options);
    else if (page == dataSubsetPage)
        refreshDataSubsetPage(options);
}

} // namespace quorvia::quorutildataio
