#include "loader/DatasetStage.h"

#include <algorithm>

#include "dataset/items/CommonAuxData.h"
#include "dataset/items/CurrentTask.h"
#include "dataset/variables/AddedVariables.h"
#include "dataset/variables/VariableFit.h"
#include "dataset/variables/VariableNames.h"
#include "dataset/zones/ZoneCreation.h"
#include "dataset/zones/ZoneFit.h"
#include "loader/BoundaryStage.h"
#include "loader/SolutionTimes.h"
#include "plot3dfile/timestep/FieldCount.h"
#include "state/AddOnIdentity.h"

namespace quorvia::quorutildataio {

namespace {

constexpr bool showErrors = true;

void reportFailedFileSet(const Plot3DFileHandler& fileSet) {
    if (QuorUtilInterruptIsSet())
        QuorUtilDialogErrMsg("Plot3D Data load interrupted");
    else if (fileSet.hasSolutionFile())
        reportFileError(*fileSet.solutionFile, "Invalid Plot 3D solution file.");
    else if (fileSet.hasGridFile())
        reportFileError(*fileSet.gridFile, "Invalid Plot 3D grid file.");
    else
        reportFileError(*fileSet.functionFiles.front(), "Invalid Plot 3D function file.");
}

/// Of a load without zones to give them to, new variables are not added.
std::int64_t countVariablesToBe(const Plot3DLoadContext_s& context) {
    const std::int64_t names = countVariableNames(context.shape, context.fileSets.front());
    if (!context.options.append && context.options.hasGridFiles)
        return names;
    return context.existingZoneCount > 0
               ? std::max<std::int64_t>(context.shape.existingVarCount, names)
               : context.shape.existingVarCount;
}

bool checkVariables(const Plot3DLoadContext_s& context) {
    const std::vector<Plot3DFileHandler>& fileSets = context.fileSets;
    // Counts that are absurd are told by the stage.
    if (!std::all_of(fileSets.begin(), fileSets.end(), areCountsPlausible))
        return true;
    const std::int64_t varCount = countVariablesToBe(context);
    const auto bad = std::find_if_not(
        fileSets.begin(), fileSets.end(), [&context, varCount](const auto& fileSet) {
            return checkVariablesFor(fileSet, context.shape, varCount);
        });
    if (bad != fileSets.end())
        reportFailedFileSet(*bad);
    return bad == fileSets.end();
}

/// New zones of unstructured solutions without a grid file hang on zones that are there.
bool checkElementsOfNewZones(const Plot3DLoadContext_s& context) {
    const std::vector<Plot3DFileHandler>& fileSets = context.fileSets;
    if (context.options.hasGridFiles ||
        fileSets.front().getDataStructure() != Plot3DDataStructure_Unstructured)
        return true;
    const bool rewritesFirst = !context.options.append || joinsLoneGrid(context);
    const std::size_t firstWithZones = rewritesFirst ? 1 : 0;
    if (fileSets.size() <= firstWithZones)
        return true;
    const std::int32_t base =
        rewritesFirst ? 1 : context.existingZoneCount - context.zonesPerTimeStep + 1;
    for (std::int32_t selected = 0; selected < context.zonesPerTimeStep; ++selected)
        if (!checkElements(base + selected)) {
            reportFailedFileSet(fileSets[firstWithZones]);
            return false;
        }
    return true;
}

class DatasetStage {
public:
    explicit DatasetStage(Plot3DLoadContext_s& load)
        : context(load), options(load.options), first(load.fileSets.front()) {}

    bool run();
    /// Takes back what a failed stage left in the host.
    void cleanUp();

private:
    bool checkCounts() const;
    bool prepare();
    bool createDataSet();
    bool countVariables();
    bool doesSolutionFit() const;
    bool adjustZones();
    bool confirmZones();
    Plot3DStrandMap_s startStrands() const;
    bool addZones();
    bool settleSolutionTimes();
    void notifyHost();
    bool deleteNewZonesAndVars();

    bool isFreshLoad() const { return !options.append && options.hasGridFiles; }
    bool replacesSolution() const { return !options.append && !options.hasGridFiles; }

    Plot3DLoadContext_s& context;
    Plot3DLoadOptions_s& options;
    const Plot3DFileHandler& first;
    bool addVarsToGrid = false;
    std::int32_t varCount = 0; // names of variables
    // Given back to the host from the last to the first.
    HostArray<std::int32_t> varTypes;
    HostStringList varNames;
    HostArgList arguments;
    HostSet varsAdded;
    HostSet zonesAdded;
    HostSet varsAltered;
};

bool DatasetStage::run() {
    if (!prepare() || !addZones() || !settleSolutionTimes())
        return false;
    if (options.loadBoundary)
        addBoundaryZones(context, zonesAdded.get());
    notifyHost();
    return true;
}

/// The message of a failed time step names its solution file, else its grid file. Where another is
/// at fault it is named ahead of that.
void reportHiddenFile(const Plot3DFileHandler& fileSet) {
    const Plot3DFile_s* named = fileSet.hasSolutionFile() ? fileSet.solutionFile : fileSet.gridFile;
    const Plot3DFile_s* file = findImplausibleFile(fileSet);
    if (named != nullptr && file != named)
        reportFileError(*file, "The counts in the file's header do not fit the file.");
}

/// Names, variables and fields for all that an absurd header claims would fill the memory.
bool DatasetStage::checkCounts() const {
    const auto bad =
        std::find_if_not(context.fileSets.begin(), context.fileSets.end(), areCountsPlausible);
    if (bad != context.fileSets.end()) {
        reportHiddenFile(*bad);
        reportFailedFileSet(*bad);
    }
    return bad == context.fileSets.end();
}

/// Everything up to the first zone.
bool DatasetStage::prepare() {
    if (!checkCounts())
        return false;
    zonesAdded = HostSet(QuorUtilSetAlloc(showErrors));
    varNames = HostStringList(QuorUtilStringListAlloc());
    if (!zonesAdded || !varNames)
        return false;
    varCount = buildVariableNames(context.shape, options, first, varNames.get());
    arguments = HostArgList(QuorUtilArgListAlloc());
    if (!arguments)
        return false;
    if (isFreshLoad() && !createDataSet()) {
        QuorUtilPostLastErrorMessage();
        return false;
    }
    addVarsToGrid = joinsLoneGrid(context);
    if (!countVariables() || !adjustZones())
        return false;
    if (context.shape.existingVarCount < varCount && context.existingZoneCount > 0 &&
        !addMissingVariables(options, first, varNames.get(), arguments.get(), varCount,
                             context.shape.existingVarCount, varsAdded))
        return false;
    varTypes = HostArray<std::int32_t>::allocate(context.shape.existingVarCount, "vardatatypes");
    if (!varTypes) {
        QuorUtilDialogErrMsg("memory allocation error.");
        return false;
    }
    return true;
}

bool DatasetStage::createDataSet() {
    currentTask->setMessage("Creating the dataset");
    QuorArgListHandle list = arguments.get();
    QuorUtilArgListClear(list);
    return QuorUtilArgListAppendString(list, "LoaderName", loaderName) &&
           QuorUtilArgListAppendString(list, "DataSetTitle", "Plot3D DataSet") &&
           QuorUtilArgListAppendStringList(list, "VarNames", varNames.get()) &&
           QuorUtilDataSetCreateX(list) && setCommonAuxData(varNames.get());
}

/// The host knows best how many variables the data set has by now.
bool DatasetStage::countVariables() {
    if (QuorUtilDataSetGetInfo(nullptr, nullptr, &context.shape.existingVarCount))
        return true;
    QuorUtilPostLastErrorMessage();
    return false;
}

/// Asked before zones are deleted. The first zones take the solution, whereas the check of the data
/// set has compared the last ones.
bool DatasetStage::doesSolutionFit() const {
    if (!first.hasSolutionFile() ||
        fitsExistingZones(*first.solutionFile, options, 1, context.existingZoneCount))
        return true;
    reportFileError(*first.solutionFile,
                    "The solution file does not fit the zones that are there.");
    return false;
}

/// Readies the zones that are there for a new solution.
bool DatasetStage::adjustZones() {
    if (!replacesSolution() && !addVarsToGrid)
        return true;
    if (!doesSolutionFit())
        return false;
    // A zone that keeps its old name is no reason to stop.
    static_cast<void>(
        adjustExistingZones(context.zonesPerTimeStep, first, options, context.existingZoneCount));
    if (!confirmZones())
        return false;
    varsAltered = HostSet(QuorUtilSetAlloc(showErrors));
    if (!varsAltered) {
        QuorUtilDialogErrMsg("memory allocation error");
        return false;
    }
    for (std::int32_t var = context.shape.numSpatialVars + 1; var <= varCount; ++var)
        if (!QuorUtilSetAddMember(varsAltered.get(), var, showErrors))
            return false;
    return true;
}

/// Zones are addressed by number from here on; one that could not be deleted would take the place
/// of a new one.
bool DatasetStage::confirmZones() {
    std::int32_t present = 0;
    if (!QuorUtilDataSetGetInfo(nullptr, &present, nullptr)) {
        QuorUtilPostLastErrorMessage();
        return false;
    }
    if (present == context.existingZoneCount)
        return true;
    context.existingZoneCount = present;
    QuorUtilDialogErrMsg("The zones that the new solution has no grids for could not be deleted.");
    return false;
}

Plot3DStrandMap_s DatasetStage::startStrands() const {
    const bool numbersOn =
        options.append && options.assignStrandIds && !options.addToExistingStrands;
    Plot3DStrandMap_s strands;
    strands.nextStrand = 1 + (numbersOn ? QuorUtilDataSetGetMaxStrandID() : 0);
    strands.newStrandEachStep = options.assignNewStrandIdForEachTimeStep &&
                                !options.addToExistingStrands && !hasUniformGrids(options);
    return strands;
}

bool DatasetStage::addZones() {
    const std::int32_t zoneBase = options.hasGridFiles
                                      ? context.existingZoneCount + 1
                                      : context.existingZoneCount - context.zonesPerTimeStep + 1;
    Plot3DZoneStage_s stage{.options = options,
                            .firstHandler = first,
                            .shape = context.shape,
                            .zoneBase = zoneBase,
                            .assignStrandIDs = context.assignStrandIDs,
                            .replaceSolution = replacesSolution(),
                            .addVarsToGrid = addVarsToGrid,
                            .varTypes = varTypes,
                            .arguments = arguments.get(),
                            .zonesAdded = zonesAdded.get(),
                            .parentZones = context.parentZones,
                            .strands = startStrands(),
                            .firstNewZone = context.firstNewZone};
    std::int32_t fileSetIndex = 0;
    const Plot3DFileHandler* previous = nullptr;
    for (Plot3DFileHandler& fileSet : context.fileSets) {
        if (previous != nullptr)
            stage.firstNewZone += countSelectedGrids(options, *previous);
        if (!addZonesOfFileSet(stage, fileSet, fileSetIndex++)) {
            reportFailedFileSet(fileSet);
            return false;
        }
        previous = &fileSet;
    }
    return true;
}

bool DatasetStage::settleSolutionTimes() {
    if (!options.assignStrandIds ||
        checkSolutionTimes(context.existingZoneCount + 1, options, context.fileSets))
        return true;
    const bool accepted = QuorUtilDialogMessageBox(
        "Solution time is identical for all time steps. To load all zones into a single time step "
        "press \"Ok\" otherwise press \"Cancel\" and rename the solution files so that each "
        "filename contains a unique solution time.",
        QuorMessageBox_OkCancel);
    // A repeat of this load from its instructions then does not ask again.
    if (accepted)
        options.extractTimeFromSolFileNames = true;
    return accepted;
}

/// The host finds out about a new data set by itself.
void DatasetStage::notifyHost() {
    if (varsAdded && !QuorUtilSetIsEmpty(varsAdded.get()))
        QuorUtilStateChanged(QuorStateChange_VarsAdded, varsAdded.get());
    if (options.append && !QuorUtilSetIsEmpty(zonesAdded.get())) {
        QuorUtilStateChanged(QuorStateChange_ZonesAdded, zonesAdded.get());
        const std::int32_t plotType = QuorUtilFrameGetPlotType();
        if (plotType == QuorPlotType_3D || plotType == QuorPlotType_2D)
            QuorUtilZoneStyleApplyAuto(zonesAdded.get());
    }
    if (replacesSolution())
        QuorUtilStateChanged(QuorStateChange_VarsAltered, varsAltered.get());
}

void DatasetStage::cleanUp() {
    currentTask->setMessage("Cleaning up...");
    if (context.existingZoneCount == 0 || !deleteNewZonesAndVars())
        QuorUtilFrameReset(QuorUtilFrameGetUniqueID());
}

void removeUpTo(QuorSetHandle set, std::int32_t last) {
    for (std::int64_t member = 1; member <= last; ++member)
        QuorUtilSetRemoveMember(set, member);
}

/// False: the host does not say what there is.
bool DatasetStage::deleteNewZonesAndVars() {
    HostSet zones;
    HostSet vars;
    const bool hasZones = QuorUtilZoneGetEnabled(zones.outArgument());
    const bool hasVars = QuorUtilVarGetEnabled(vars.outArgument());
    if (!hasZones || !hasVars)
        return false;
    removeUpTo(zones.get(), context.existingZoneCount);
    if (!QuorUtilSetIsEmpty(zones.get()))
        QuorUtilDataSetDeleteZone(zones.get());
    removeUpTo(vars.get(), context.shape.existingVarCount);
    if (!QuorUtilSetIsEmpty(vars.get()))
        QuorUtilDataSetDeleteVar(vars.get());
    return true;
}

} // namespace

bool checkNeeds(const Plot3DLoadContext_s& context) {
    return checkVariables(context) && checkElementsOfNewZones(context);
}

bool createDatasetAndZones(Plot3DLoadContext_s& context) {
    DatasetStage stage(context);
    bool done = false;
    try {
        done = stage.run();
    } catch (...) { // memory ran out: the load ends, but leaves no half-made data set
        stage.cleanUp();
        throw;
    }
    if (!done)
        stage.cleanUp();
    return done;
}

} // namespace quorvia::quorutildataio
