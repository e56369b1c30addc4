#include "addon/FileSelectionRoute.h"

#include "addon/LoaderCallbacks.h"
#include "boundary/BoundaryFileLocation.h"
#include "dialog/LoadDialog.h"
#include "filenames/FileNameClassification.h"
#include "instructions/OptionKeys.h"
#include "quorvia/QuorGUI.h"
#include "state/AddOnIdentity.h"
#include "state/DialogState.h"

namespace quorvia::quorutildataio {

namespace {

/// A list of instructions in the making, which remembers whether the host took all of it.
class InstructionComposer {
public:
    InstructionComposer() : list_(QuorUtilStringListAlloc()), isWhole_(list_) {}

    void append(const std::string& text) {
        isWhole_ = isWhole_ && QuorUtilStringListAppendString(list_.get(), text.c_str());
    }
    void append(const char* key, const std::string& value) {
        append(key);
        append(value);
    }
    void appendFiles(const char* key, const std::vector<std::string>& files) {
        if (files.empty())
            return;
        append(key, std::to_string(files.size()));
        for (const std::string& file : files)
            append(file);
    }

    /// Null unless the list is whole: half of it would load something else.
    HostStringList finish() && { return isWhole_ ? std::move(list_) : HostStringList(); }

private:
    HostStringList list_;
    bool isWhole_;
};

bool hasBoundaryFile(const std::vector<std::string>& gridFiles) {
    Plot3DLoadOptions_s options;
    options.gridFiles = gridFiles;
    return findBoundaryFile(options);
}

void loadAtOnce(const SelectedFiles_s& files, bool append) {
    constexpr bool fromSelection = true;
    const HostStringList instructions = composeInstructions(files, append);
    if (!instructions) {
        QuorUtilDialogErrMsg("Out of Memory!!!");
        return;
    }
    // The host asks for no result, and what went wrong has been told.
    static_cast<void>(loadFromInstructions(instructions.get(), fromSelection));
}

void showLoadDialog(SelectedFiles_s&& files) {
    const bool isFirstLaunch = loadDialog == noControl;
    createLoadDialog();
    gRetainedGridFiles = std::move(files.gridFiles);
    gRetainedSolutionFiles = std::move(files.solutionFiles);
    gRetainedFunctionFiles = std::move(files.functionFiles);
    gRetainedNameFile = std::move(files.nameFile);
    if (loadDialog == noControl)
        return;
    if (isFirstLaunch)
        QuorGUISetInputFocus(gridAddFiles);
    QuorGUIDialogLaunch(loadDialog);
}

} // namespace

HostStringList composeInstructions(const SelectedFiles_s& files, bool append) {
    using Options = Plot3DLoadOptions_s;
    InstructionComposer instructions;
    instructions.append(standardSyntaxWord, standardSyntaxVersion);
    instructions.appendFiles(optionKeyWord(&Options::gridFiles), files.gridFiles);
    instructions.appendFiles(optionKeyWord(&Options::solutionFiles), files.solutionFiles);
    instructions.appendFiles(optionKeyWord(&Options::functionFiles), files.functionFiles);
    if (!files.nameFile.empty())
        instructions.append(optionKeyWord(&Options::nameFile), files.nameFile);
    if (hasBoundaryFile(files.gridFiles))
        instructions.append(optionKeyWord(&Options::loadBoundary), trueWord);
    if (append)
        instructions.append(optionKeyWord(&Options::append), trueWord);
    instructions.append(optionKeyWord(&Options::solutionsShareStructure), trueWord);
    instructions.append(optionKeyWord(&Options::assignStrandIdsRequested), trueWord);
    return std::move(instructions).finish();
}

void loaderSelectedCallback(QuorStringListHandle files, bool advancedOptions, bool append) {
    SelectedFiles_s selected;
    const HostLock lock(addOnID);
    if (!classifyFileNames(files, selected.gridFiles, selected.solutionFiles,
                           selected.functionFiles, selected.nameFile))
        return;
    if (advancedOptions)
        showLoadDialog(std::move(selected));
    else
        loadAtOnce(selected, append);
}

} // namespace quorvia::quorutildataio
