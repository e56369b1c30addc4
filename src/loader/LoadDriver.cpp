#include "loader/LoadDriver.h"

#include <algorithm>

#include "boundary/BoundaryFileLocation.h"
#include "dataset/items/CurrentTask.h"
#include "dataset/ondemand/Plot3DVarRepo.h"
#include "instructions/InstructionWriter.h"
#include "instructions/TurnedRange.h"
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
#include "plot3dfile/timestep/FieldCount.h"
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
    // Once more, since solution files may have turned out to be function files.
    const bool examined =
        checkFileSetCounts(options) && examineFiles(context) && checkFileSetCounts(options);
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

/// The record of a later grid file of a uniform load has the size of the first one.
std::int64_t measure(const Plot3DFile_s& file) {
    const std::unique_ptr<FileStream> stream = FileStream::open(file.fileName.str());
    const std::int64_t size = stream != nullptr ? stream->size() : -1;
    return size >= 0 ? size : file.fileSize; // the scan will tell what is wrong with the file
}

/// Text that a few repeat tokens blow up is refused while the host's data set is still as it was.
bool checkTextValues(const Plot3DLoadContext_s& context) {
    for (const Plot3DFileList* files :
         {&context.gridFiles, &context.solutionFiles, &context.functionFiles})
        for (const Plot3DFilePtr& file : *files) {
            // Absurd counts of fields are told later, each in its own way.
            if (file->encoding != Plot3DEncoding_Ascii || !isFieldCountPlausible(*file))
                continue;
            const bool isMeasured = files != &context.gridFiles || file == files->front();
            if (isValueCountPlausible(*file, isMeasured ? file->fileSize : measure(*file)))
                continue;
            reportFileError(*file, "The file promises more than 64 values for each of its bytes.");
            return false;
        }
    return true;
}

/// The first time step stands for the load.
void readShape(Plot3DLoadContext_s& context) {
    const Plot3DFileHandler& first = context.fileSets.front();
    Plot3DLoadShape_s& shape = context.shape;
    if (first.hasSolutionFile())
        shape.numSolutionVars = first.solutionFile->numVars;
    if (first.hasFunctionFiles())
        shape.numFunctionVars = first.functionFiles.front()->numVars;
    if (first.hasGridFile() || first.hasSolutionFile()) {
        context.dataStructure = first.getDataStructure();
        shape.numSpatialVars = coordinateCount(context.dataStructure);
    }
    if (first.hasGridFile())
        shape.hasIBlank = first.gridFile->hasIBlank;
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
    if (!checkDatasetCompatibility(context) || !checkNeeds(context))
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
    if (!checkIndexRanges(context.options))
        return false;
    settleBoundaryFile(context.options);
    normaliseStrandOptions(context.options);
    if (!examineNamesAndHeaders(context) || !makeFileSets(context) || !checkTextValues(context))
        return false;
    readShape(context);
    context.mainTask->createSubTask(currentTask, estimateLoadWork(context));
    context.zonesPerTimeStep = countSelectedGrids(context.options, context.fileSets.front());
    if (!checkGridSet(context.options, context.fileSets, context.zonesPerTimeStep))
        return false;
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
