#include "dialog/FileSelectionRefresh.h"

#include "dialog/DialogControls.h"
#include "quorvia/QuorGUI.h"

namespace quorvia::quorutildataio {

namespace {

void refreshFileLists(const Plot3DLoadOptions_s& options) {
    showFiles(gridList, options.gridFiles);
    showFiles(solutionList, options.solutionFiles);
    showFiles(functionList, options.functionFiles);
    for (const std::int32_t button :
         {gridRemoveSelected, solutionRemoveSelected, functionRemoveSelected})
        QuorGUISetSensitivity(button, false); // nothing is selected in a list that was just filled
    QuorGUISetSensitivity(gridRemoveAll, !options.gridFiles.empty());
    QuorGUISetSensitivity(solutionRemoveAll, !options.solutionFiles.empty());
    QuorGUISetSensitivity(functionRemoveAll, !options.functionFiles.empty());
}

void refreshNameFile(const Plot3DLoadOptions_s& options) {
    QuorGUITextFieldSetString(nameFileField, options.nameFile.c_str());
    const bool hasVariablesToName = !options.gridFiles.empty() && (!options.functionFiles.empty() ||
                                                                   !options.solutionFiles.empty());
    for (const std::int32_t control : {nameFileLabel, nameFileBrowse, nameFileField})
        QuorGUISetSensitivity(control, hasVariablesToName);
}

bool canAddToStrands(const Plot3DLoadOptions_s& options) {
    return options.append && !options.solutionFiles.empty() &&
           options.style != Plot3DStyle_Function && options.assignStrandIds &&
           !options.assignNewStrandIdForEachTimeStep;
}

bool canAssignStrandPerStep(const Plot3DLoadOptions_s& options) {
    return !options.uniformGridStructure && options.assignStrandIds &&
           !options.addToExistingStrands;
}

void refreshStrands(const Plot3DLoadOptions_s& options) {
    QuorGUISetSensitivity(addToStrandsToggle, canAddToStrands(options));
    QuorGUISetSensitivity(newStrandPerStepToggle, canAssignStrandPerStep(options));
    QuorGUISetSensitivity(uniformGridToggle, options.gridFiles.size() != 1);
    QuorGUIToggleSet(assignStrandToggle, options.assignStrandIds);
    QuorGUIToggleSet(uniformGridToggle, options.uniformGridStructure);
    QuorGUIToggleSet(addToStrandsToggle, options.addToExistingStrands);
    QuorGUIToggleSet(newStrandPerStepToggle, options.assignNewStrandIdForEachTimeStep);
}

} // namespace

void refreshFileSelectionPage(Plot3DLoadOptions_s& options) {
    const bool isDataSetThere = QuorUtilDataSetIsAvailable();
    options.append = options.append && isDataSetThere;
    QuorGUIToggleSet(appendToggle, options.append);
    QuorGUISetSensitivity(appendToggle, isDataSetThere);
    refreshFileLists(options);
    refreshNameFile(options);
    refreshStrands(options);
}

void showFiles(std::int32_t list, const std::vector<std::string>& files) {
    QuorGUIListDeleteAllItems(list);
    for (const std::string& file : files)
        QuorGUIListAppendItem(list, file.c_str());
}

} // namespace quorvia::quorutildataio
