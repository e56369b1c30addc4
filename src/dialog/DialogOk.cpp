#include "dialog/DialogOk.h"

#include "boundary/BoundaryFileLocation.h"
#include "dialog/DialogControls.h"
#include "dialog/DialogLock.h"
#include "dialog/FileSelectionRefresh.h"
#include "dialog/LoadDialog.h"
#include "dialog/WithinMemory.h"
#include "instructions/OptionsValidation.h"
#include "loader/LoadDriver.h"
#include "quorvia/HostHandles.h"
#include "quorvia/QuorGUI.h"

namespace quorvia::quorutildataio {

namespace {

bool isAnyVariableNamed(const Plot3DLoadOptions_s& options) {
    return !options.gridFiles.empty() &&
           (!options.functionFiles.empty() || !options.solutionFiles.empty()) &&
           !options.nameFile.empty();
}

/// What the record holds beside the controls' own values. False: the user was told why not.
bool settleOptions() {
    gLoadOptions.hasGridFiles = !gLoadOptions.gridFiles.empty();
    gLoadOptions.hasSolutionFiles = !gLoadOptions.solutionFiles.empty();
    gLoadOptions.assignStrandIdsRequested = gLoadOptions.assignStrandIds;
    const HostString nameFile(QuorGUITextFieldGetString(nameFileField));
    if (!nameFile) {
        QuorUtilDialogErrMsg("Out of Memory!!!");
        return false;
    }
    gLoadOptions.nameFile = nameFile.str();
    // A name file that names nothing is kept, but not used.
    gLoadOptions.hasNameFile = isAnyVariableNamed(gLoadOptions);
    return true;
}

/// The function files take the place of the solution files among what is remembered: a dialog that
/// comes back shows them there. OK is defined so, uneven as it is.
void retainFiles() {
    gRetainedNameFile = gLoadOptions.nameFile;
    gRetainedGridFiles = gLoadOptions.gridFiles;
    gRetainedSolutionFiles = gLoadOptions.solutionFiles;
    gRetainedFunctionFiles.clear();
    if (!gLoadOptions.functionFiles.empty())
        gRetainedSolutionFiles = gLoadOptions.functionFiles;
}

bool mayReplaceDataSet() {
    constexpr std::int32_t yesOrNo = QuorMessageBox_YesNo;
    return gLoadOptions.append || !QuorUtilDataSetIsAvailable() ||
           QuorUtilDialogMessageBox("Warning: All current data will be lost. Continue?", yesOrNo);
}

/// The load works on a copy, so that the dialog keeps what the user has set. The copy borrows the
/// set of grids.
bool loadCopyOfOptions() {
    constexpr bool fromSelection = true;
    Plot3DLoadOptions_s copy = gLoadOptions;
    return loadPlot3DData(fromSelection, copy);
}

/// False: the dialog is to come back.
bool loadWhatIsChosen() {
    if (!settleOptions() || !validateLoadOptions(gLoadOptions))
        return false;
    showFiles(solutionList, gLoadOptions.solutionFiles);
    showFiles(functionList, gLoadOptions.functionFiles);
    retainFiles();
    if (!mayReplaceDataSet())
        return false;
    gLoadOptions.loadBoundary = findBoundaryFile(gLoadOptions);
    return loadCopyOfOptions();
}

} // namespace

void okPressed() {
    const DialogLockEnd lock;
    QuorGUIDialogDrop(loadDialog);
    if (runWithinMemory(loadWhatIsChosen))
        return;
    createLoadDialog();
    QuorGUIDialogLaunch(loadDialog);
}

} // namespace quorvia::quorutildataio
