#include "loader/DatasetCompatibility.h"

#include <string>

#include "dataset/items/CurrentTask.h"
#include "dataset/zones/ZoneCreation.h"
#include "dataset/zones/ZoneDimensions.h"

namespace quorvia::quorutildataio {

namespace {

bool refuse(const std::string& text) {
    QuorUtilDialogErrMsg(text.c_str());
    return false;
}

/// Variables that the plot type takes for coordinates; 0 for one that can't show zones.
std::int32_t countSpatialVarsOfFrame() {
    switch (QuorUtilFrameGetPlotType()) {
    case QuorPlotType_3D:
        return 3;
    case QuorPlotType_2D:
    case QuorPlotType_XY:
    case QuorPlotType_Polar:
        return 2;
    default:
        return 0;
    }
}

/// Holds the files against the data set, which is read by the positions of its variables alone.
class CompatibilityCheck {
public:
    explicit CompatibilityCheck(Plot3DLoadContext_s& load)
        : context_(load), options_(load.options), first_(load.fileSets.front()) {}

    /// What the data set itself must fulfil.
    bool checkDataSet() {
        if (!QuorUtilDataSetIsAvailable())
            return refuse("No dataset present in Quorvia.  Cannot load solution only plot3d "
                          "files.");
        if (!QuorUtilDataSetGetInfo(nullptr, &context_.existingZoneCount,
                                    &context_.shape.existingVarCount))
            return refuse("Cannot query for dataset information.");
        required_ = countSpatialVarsOfFrame();
        if (required_ == 0)
            return refuse("Must be in XY,Polar,2D or 3D plot type for this operation.");
        if (context_.shape.existingVarCount < required_)
            return refuse("Not enough unique spatial vars available.");
        const bool fieldsFit = checkFields();
        if (!options_.hasGridFiles && sawIBlank_)
            context_.shape.hasIBlank = true;
        return fieldsFit;
    }

    /// What the files must fulfil beside it.
    bool checkFiles() const {
        if (options_.append && !checkSpatialVars())
            return false;
        if (options_.hasGridFiles)
            return checkGridFiles();
        return checkZoneCount() &&
               (!options_.hasSolutionFiles || (checkVarCount() && checkSizes()));
    }

private:
    bool rewritesZones() const { return !options_.append || joinsLoneGrid(context_); }

    bool checkFields() {
        for (std::int32_t zone = 1; zone <= context_.existingZoneCount; ++zone)
            for (std::int32_t var = 1; var <= context_.shape.existingVarCount; ++var)
                if (!checkField(zone, var))
                    return false;
        return true;
    }

    bool checkField(std::int32_t zone, std::int32_t var) {
        const bool isNodal = QuorUtilDataValueGetLocation(zone, var) == QuorValueLocation_Nodal;
        if (var <= required_)
            return isNodal || refuse("Spatial variables (assumed to be the first n variables) must "
                                     "all be nodal in the existing dataset.");
        if (!isNodal)
            return !rewritesZones() || refuse("Solution variables must all be nodal in the "
                                              "existing dataset if replacing the solution.");
        return var != required_ + 1 || checkIBlankField(zone, var);
    }

    /// Zones ahead of the first with an I-blank variable are not held against it.
    bool checkIBlankField(std::int32_t zone, std::int32_t var) {
        const bool isInteger = QuorUtilDataValueGetType(zone, var) == QuorFieldDataType_Int32;
        if (!sawIBlank_) {
            sawIBlank_ = isInteger;
            return true;
        }
        return isInteger || QuorUtilDataValueIsPassive(zone, var) ||
               refuse("Existing dataset has inconsistent types for variable in the I-Blank "
                      "position.");
    }

    std::int64_t neededVars() const {
        return context_.shape.gridAndSolutionVarCount() + context_.shape.numFunctionVars;
    }

    /// A 1-D solution goes into any plot.
    bool checkSpatialVars() const {
        if (required_ == context_.shape.numSpatialVars ||
            (first_.getDataStructure() == Plot3DDataStructure_1D && options_.hasSolutionFiles))
            return true;
        return refuse("Not allowed to append if existing dataset does not have the same number of "
                      "spatial variables (" +
                      std::to_string(required_) + ") as the number required by the plot3d files (" +
                      std::to_string(context_.shape.numSpatialVars) + ").");
    }

    bool checkGridFiles() const {
        if (!first_.hasGridFile())
            return refuse("The list of grid files to append is empty.");
        if (!options_.hasSolutionFiles || neededVars() <= context_.shape.existingVarCount)
            return true;
        return refuse("Not allowed to append if existing dataset that has fewer number of "
                      "variables (" +
                      std::to_string(context_.shape.existingVarCount) +
                      ") than the number of variables required by the incoming grid and solution "
                      "files (" +
                      std::to_string(neededVars()) + ").");
    }

    bool checkZoneCount() const {
        if (context_.existingZoneCount >= context_.zonesPerTimeStep)
            return true;
        return refuse("Not allowed to replace solution in existing dataset that has fewer number "
                      "of zones (" +
                      std::to_string(context_.existingZoneCount) +
                      ") than the number of grids retrieved from in the solution files (" +
                      std::to_string(context_.zonesPerTimeStep) + ").");
    }

    bool checkVarCount() const {
        if (context_.shape.existingVarCount == neededVars())
            return true;
        return refuse("Not allowed to load solution in existing dataset that does not have the "
                      "number of variables (" +
                      std::to_string(context_.shape.existingVarCount) +
                      ") equal to the number of variables retrieved from in the solution files (" +
                      std::to_string(neededVars()) + ").\nTry loading with a grid file.");
    }

    /// The last zones are compared, also where the first ones will be kept.
    bool checkSizes() const {
        std::int32_t zone = context_.existingZoneCount - context_.zonesPerTimeStep + 1;
        std::int32_t selected = 0;
        for (std::int32_t grid = 0; grid < first_.getNumGrids(); ++grid) {
            if (!isGridSelected(options_.gridSet, std::int64_t{grid} + 1))
                continue;
            if (!hasEqualSize(selected, zone))
                return refuseSize(zone, selected + 1);
            ++selected;
            ++zone;
        }
        return true;
    }

    /// Grids are looked up by their running number among the selected ones.
    bool hasEqualSize(std::int32_t selected, std::int32_t zone) const {
        const bool isUnstructured = first_.getDataStructure() == Plot3DDataStructure_Unstructured;
        if (isUnstructured && !hasElements(QuorUtilZoneGetType(zone)))
            return true; // its I may count something else than nodes
        const Plot3DZoneDims_s dims = zoneDimensionsForGrid(options_, first_, selected, zone);
        Plot3DZoneDims_s there = {0, 0, 0};
        QuorUtilZoneGetInfo(zone, &there.i, &there.j, &there.k, nullptr);
        return dims.i == there.i && (isUnstructured || (dims.j == there.j && dims.k == there.k));
    }

    bool refuseSize(std::int32_t zone, std::int32_t gridNumber) const {
        std::string text = "Zone " + std::to_string(zone) +
                           " in quorvia does not have the same dimensions as grid " +
                           std::to_string(gridNumber) +
                           " in the incoming plot3d source file.  These must be the same in order "
                           "to replace the existing solution.";
        if (options_.loadBoundary)
            text += "\nThe existence of boundary zones will not allow appending. Please remove the "
                    "boundary file or load all files at the same time.";
        return refuse(text);
    }

    Plot3DLoadContext_s& context_;
    const Plot3DLoadOptions_s& options_;
    const Plot3DFileHandler& first_;
    std::int32_t required_ = 0; // variables that the frame takes for coordinates
    bool sawIBlank_ = false;    // a zone has integers behind the coordinates
};

} // namespace

bool checkDatasetCompatibility(Plot3DLoadContext_s& context) {
    const Plot3DLoadOptions_s& options = context.options;
    context.existingZoneCount = 0;
    context.firstNewZone = 1;
    if (!options.append && options.hasGridFiles)
        return true; // a new data set has nothing to agree with

    currentTask->setMessage("Checking dataset compatibility");
    CompatibilityCheck check(context);
    const bool dataSetFits = check.checkDataSet();
    if (options.append)
        context.firstNewZone = context.existingZoneCount + 1;
    return dataSetFits && check.checkFiles();
}

} // namespace quorvia::quorutildataio
