#include "loader/LoadDriver.h"

#include <algorithm>

#include "boundary/BoundaryFileLocation.h"
#include "dataset/items/CurrentTask.h"
#include "instructions/InstructionWriter.h"
#include "loader/DatasetCompatibility.h"
#include "loader/DatasetStage.h"
#include "loader/FileSetCounts.h"
#include "loader/FunctionAppend.h"
#include "loader/GridCountRules.h"
#include "loader/HeaderExamination.h"
#include "loader/LoadContext.h"
#include "loader/LoadScopes.h"
#include "loader/LoadWork.h"
#include "loader/SolutionTimes.h"
#include "loader/TimeStepPairing.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

/// A load without its boundary file goes on.
void settleBoundaryFile(Plot3DLoadOptions_s& options) {
    if (!options.loadBoundary || findBoundaryFile(options))
        return;
    options.loadBoundary = false;
    QuorUtilDialogErrMsg("The boundary file does not exist in the same directory as the grid file "
                         "and will not be loaded.This may have an effect on the dataset if "
                         "anything relies on the boundary zones.");
}

/// Headers of all files, and the times of their names, which are taken also from refused files.
bool examineNamesAndHeaders(Plot3DLoadContext_s& context) {
    Plot3DLoadOptions_s& options = context.options;
    const bool examined = checkFileSetCounts(options) && examineFiles(context);
    const bool hasNames = !options.solutionFiles.empty() || !options.functionFiles.empty();
    if (options.extractTimeFromSolFileNames && hasNames)
        extractSolutionTimes(options);
    return examined;
}

bool makeFileSets(Plot3DLoadContext_s& context) {
    const Plot3DLoadOptions_s& options = context.options;
    const Plot3DFileList& grids = context.gridFiles;
    const Plot3DFileList& solutions = context.solutionFiles;
    const Plot3DFileList& functions = context.functionFiles;
    if (!checkFileListGridCounts(grids, solutions, functions))
        return false;
    if (options.uniformGridStructure && !checkUniformGridStructure(grids, solutions, functions))
        return false;
    if (!pairFilesIntoHandlers(options, grids, solutions, functions, context.fileSets) ||
        !checkHandlerDimensions(context.fileSets, options.uniformGridStructure))
        return false;
    if (context.fileSets.empty()) {
        QuorUtilDialogErrMsg("There are no files to load.");
        return false;
    }
    return true;
}

/// The first time step stands for the load.
void readShape(Plot3DLoadContext_s& context) {
    const Plot3DFileHandler& first = context.fileSets.front();
    if (first.hasSolutionFile())
        context.numSolutionVars = first.solutionFile->numVars;
    if (first.hasFunctionFiles())
        context.numFunctionVars = first.functionFiles.front()->numVars;
    if (first.hasGridFile() || first.hasSolutionFile()) {
        context.dataStructure = first.getDataStructure();
        context.numSpatialVars = coordinateCount(context.dataStructure);
    }
    if (first.hasGridFile())
        context.hasIBlank = first.gridFile->hasIBlank;
}

bool appendsFunctionsAlone(const Plot3DLoadContext_s& context) {
    return context.options.append && std::all_of(context.fileSets.begin(), context.fileSets.end(),
                                                 [](const Plot3DFileHandler& fileSet) {
                                                     return !fileSet.hasGridFile() &&
                                                            !fileSet.hasSolutionFile() &&
                                                            fileSet.hasFunctionFiles();
                                                 });
}

/// One entry for each zone that the data set may have after the load. False: no memory.
bool allocateParentZones(Plot3DLoadContext_s& context) {
    std::int64_t zoneCount = context.options.append ? context.existingZoneCount : 0;
    if (hasUniformGrids(context.options)) {
        zoneCount += static_cast<std::int64_t>(context.fileSets.size()) * context.zonesPerTimeStep;
    } else {
        for (const Plot3DFileHandler& fileSet : context.fileSets)
            zoneCount += fileSet.getNumGrids(); // also those that are not selected
    }
    context.parentZones = HostArray<std::int32_t>::allocate(zoneCount, "Parent Zone Array");
    std::fill(context.parentZones.begin(), context.parentZones.end(), 0);
    return static_cast<bool>(context.parentZones);
}

bool buildDataSet(Plot3DLoadContext_s& context) {
    constexpr std::int32_t loadUndoCategory = 9;
    const Plot3DLoadOptions_s& options = context.options;
    const Plot3DFileHandler& first = context.fileSets.front();
    context.zonesPerTimeStep = countSelectedGrids(options, first);
    if (!checkDatasetCompatibility(context))
        return false;
    if (options.append) {
        context.undoStarted = true;
        QuorUtilUndoStateBegin(loadUndoCategory);
    }
    // Function files without times can't be told apart.
    const bool hasNoTimes =
        first.getStyle() == Plot3DStyle_Function && options.solutionTimes.empty();
    context.assignStrandIDs = options.assignStrandIds && !hasNoTimes;
    return allocateParentZones(context) && createDatasetAndZones(context);
}

/// Everything that happens while the progress bar is open.
bool loadUnderProgressBar(Plot3DLoadContext_s& context) {
    const LoadProgressBar bar(context);
    settleBoundaryFile(context.options);
    normaliseStrandOptions(context.options);
    if (!examineNamesAndHeaders(context) || !makeFileSets(context))
        return false;
    readShape(context);
    context.mainTask->createSubTask(currentTask, estimateLoadWork(context));
    if (appendsFunctionsAlone(context))
        return appendFunctionFiles(context.fileSets, context.options);
    return buildDataSet(context);
}

void showNewDataSet(Plot3DDataStructure_e dataStructure) {
    constexpr bool doFullDrawing = true;
    switch (coordinateCount(dataStructure)) {
    case 1:
        QuorUtilFrameSetPlotType(QuorPlotType_XY);
        break;
    case 2:
        QuorUtilFrameSetPlotType(QuorPlotType_2D);
        break;
    case 3:
        QuorUtilFrameSetPlotType(QuorPlotType_3D);
        break;
    default:
        break;
    }
    QuorUtilRedraw(doFullDrawing);
}

bool handOverInstructions(const Plot3DLoadOptions_s& options) {
    const HostStringList instructions = writeLoadInstructions(options);
    return QuorUtilImportSetLoaderInstr(loaderName, instructions.get());
}

} // namespace

bool loadPlot3DData(bool fromSelection, Plot3DLoadOptions_s& options) {
    // Outlives the lock: the notifications that it holds back go out after the lock is given back.
    const SolutionTimeNotificationDeferrer deferrer;
    const HostLock lock(addOnID);
    Plot3DLoadContext_s context(options, fromSelection);
    const VarRepoClearing repoClearing;
    LoadUndoState undo(context);

    bool ok = loadUnderProgressBar(context);
    if (ok && !options.append)
        showNewDataSet(context.dataStructure);
    ok = ok && handOverInstructions(options);
    undo.end(ok);
    return ok;
}

} // namespace quorvia::quorutildataio
