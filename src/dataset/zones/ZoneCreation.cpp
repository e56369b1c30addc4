#include "dataset/zones/ZoneCreation.h"

#include <string>

#include "dataset/items/Connectivity.h"
#include "dataset/items/SetupProgress.h"
#include "dataset/ondemand/Plot3DVarRepo.h"
#include "dataset/variables/VariableNames.h"
#include "dataset/zones/FileSetSetup.h"
#include "dataset/zones/ZoneDimensions.h"

namespace quorvia::quorutildataio {

namespace {

/// The zones of one file set, grid by grid.
class FileSetZones {
public:
    FileSetZones(Plot3DZoneStage_s& stage, Plot3DFileHandler& handler, std::int32_t fileSetIndex)
        : stage_(stage), handler_(handler), fileSetIndex_(fileSetIndex),
          createZones_(fileSetIndex > 0 || !(stage.replaceSolution || stage.addVarsToGrid)) {}

    bool addAll() {
        const bool mayShare = QuorUtilDataSetIsSharingAllowed();
        shareNodeMaps_ = mayShare && sharesConnectivity();
        const std::int32_t grids = handler_.getNumGrids();
        for (std::int32_t grid = 0; grid < grids; ++grid) {
            const bool isSelected = isGridSelected(stage_.options.gridSet, std::int64_t{grid} + 1);
            if (isSelected && !addSelected(grid))
                return false;
            ++stage_.runningGridCount;
        }
        return true;
    }

private:
    bool sharesConnectivity() const {
        const Plot3DLoadOptions_s& options = stage_.options;
        if (options.gridFiles.size() > 1)
            return false;
        if (options.hasGridFiles || !options.append)
            return fileSetIndex_ > 0;
        return true;
    }

    bool addSelected(std::int32_t grid) {
        const std::int32_t selected = selectedCount_++;
        const std::int64_t zone = std::int64_t{stage_.firstNewZone} + selected;
        if (zone > maximumZoneNumber) {
            reportTooManyZones(selected);
            return false;
        }
        const std::int32_t baseZone = stage_.zoneBase + selected;
        const std::int32_t strand = strandFor(grid, baseZone);
        if (createZones_)
            return createZone(grid, static_cast<std::int32_t>(zone), baseZone, strand);
        return !stage_.addVarsToGrid || adoptZone(grid, strand);
    }

    std::int32_t strandFor(std::int32_t grid, std::int32_t baseZone) {
        if (!stage_.assignStrandIDs)
            return noStrand;
        return stage_.strands.strandForGrid(handler_.getGridDims(grid), std::to_string(baseZone))
            .strand;
    }

    bool createZone(std::int32_t grid, std::int32_t zone, std::int32_t baseZone,
                    std::int32_t strand) {
        if (!handler_.hasGridFile() && baseZone < zone)
            takeGridTypes(baseZone);
        if (zone > stage_.parentZones.count() ||
            !addZoneForGrid(
                stage_, handler_, grid,
                {.baseZone = baseZone, .shareNodeMap = shareNodeMaps_, .strand = strand}) ||
            !QuorUtilSetAddMember(stage_.zonesAdded, zone, true))
            return false;
        stage_.parentZones[zone - 1] = stage_.runningGridCount;
        return true;
    }

    /// The grid that the zone takes over need not have the precision of the solution.
    void takeGridTypes(std::int32_t baseZone) const {
        const std::int32_t lastVar = stage_.shape.gridVarCount();
        for (std::int32_t var = 1; var <= lastVar && var <= stage_.varTypes.count(); ++var) {
            const std::int32_t type = QuorUtilDataValueGetType(baseZone, var);
            const bool isKnown = type != QuorFieldDataType_Invalid;
            stage_.varTypes[var - 1] = isKnown && !QuorUtilDataValueIsPassive(baseZone, var)
                                           ? type
                                           : fieldDataType(handler_, var - 1, stage_.shape);
        }
    }

    /// A zone that is there gets the solution; it counts as new to the host. The zone goes by the
    /// grid's place in the file, so that for one behind grids that are left out there may be none.
    bool adoptZone(std::int32_t grid, std::int32_t strand) {
        const std::int32_t zone = grid + 1;
        stage_.firstNewZone = 1;
        std::int32_t zoneCount = 0;
        if (!QuorUtilDataSetGetInfo(nullptr, &zoneCount, nullptr))
            return false;
        if (zone > zoneCount)
            return true;
        if (stage_.assignStrandIDs)
            QuorUtilZoneSetStrandID(zone, strand);
        return QuorUtilSetAddMember(stage_.zonesAdded, zone, true);
    }

    void reportTooManyZones(std::int32_t selected) const {
        const std::string text = "Failed to load grid " + std::to_string(selected) + " from " +
                                 handler_.getGridFileName() + "\nMaximum number of zones is " +
                                 std::to_string(maximumZoneNumber) + ".";
        QuorUtilDialogErrMsg(text.c_str());
    }

    Plot3DZoneStage_s& stage_;
    Plot3DFileHandler& handler_;
    const std::int32_t fileSetIndex_;
    const bool createZones_;
    bool shareNodeMaps_ = false;
    std::int32_t selectedCount_ = 0;
};

void fillTypes(const Plot3DZoneStage_s& stage, const Plot3DFileHandler& handler) {
    for (std::int64_t var = 0; var < stage.varTypes.count(); ++var)
        stage.varTypes[var] = fieldDataType(handler, static_cast<std::int32_t>(var), stage.shape);
}

std::int64_t zoneTypeOf(const Plot3DFileHandler& handler, const Plot3DZoneDims_s& dims) {
    if (handler.getDataStructure() != Plot3DDataStructure_Unstructured)
        return QuorZoneType_Ordered;
    return dims.k == triangleCorners ? QuorZoneType_Triangles : QuorZoneType_Tetrahedra;
}

bool deleteZones(std::int32_t first, std::int32_t last) {
    const HostSet zones(QuorUtilSetAlloc(true));
    if (!zones)
        return false;
    for (std::int64_t zone = first; zone <= last; ++zone)
        if (!QuorUtilSetAddMember(zones.get(), zone, true))
            return false;
    return QuorUtilZoneDelete(zones.get());
}

} // namespace

bool adjustExistingZones(std::int32_t zonesPerTimeStep, const Plot3DFileHandler& firstHandler,
                         const Plot3DLoadOptions_s& options, std::int32_t& existingZoneCount) {
    bool deleted = true;
    if (existingZoneCount > zonesPerTimeStep) {
        showOnCurrentTask("Adjusting existing zones");
        deleted = deleteZones(zonesPerTimeStep + 1, existingZoneCount);
    }
    existingZoneCount = zonesPerTimeStep;
    std::int32_t zone = 1;
    for (std::int32_t grid = 0; grid < firstHandler.getNumGrids(); ++grid) {
        if (!isGridSelected(options.gridSet, std::int64_t{grid} + 1))
            continue;
        if (!QuorUtilZoneRename(zone, firstHandler.getZoneName(grid).c_str()))
            return false;
        ++zone;
    }
    return deleted;
}

bool addZonesOfFileSet(Plot3DZoneStage_s& stage, Plot3DFileHandler& handler,
                       std::int32_t fileSetIndex) {
    const VarRepoClearing repoClearing;
    stage.strands.beginFileSet();
    fillTypes(stage, handler);
    FileSetZones zones(stage, handler, fileSetIndex);
    if (!zones.addAll())
        return false;
    return setUpFileSet({.options = stage.options,
                         .handler = handler,
                         .firstHandler = stage.firstHandler,
                         .firstZoneOfLoad = stage.zoneBase,
                         .firstZone = stage.firstNewZone,
                         .shape = stage.shape,
                         .isFirstFileSet = fileSetIndex == 0});
}

bool checkElements(std::int32_t zone) {
    std::int32_t zoneCount = 0;
    if (QuorUtilDataSetGetInfo(nullptr, &zoneCount, nullptr) && zone <= zoneCount &&
        hasElements(QuorUtilZoneGetType(zone)))
        return true;
    const std::string text = "Zone " + std::to_string(zone) +
                             " has neither triangles nor tetrahedra that a zone of an "
                             "unstructured solution could have.";
    QuorUtilDialogErrMsg(text.c_str());
    return false;
}

bool addZoneForGrid(Plot3DZoneStage_s& stage, const Plot3DFileHandler& handler,
                    std::int32_t gridIndex, const Plot3DZoneRequest_s& request) {
    const bool isUnstructured = handler.getDataStructure() == Plot3DDataStructure_Unstructured;
    // A solution file knows no elements; they are those of the zone that the grid came with.
    if (isUnstructured && !handler.hasGridFile() && !checkElements(request.baseZone))
        return false;
    const Plot3DZoneDims_s dims =
        zoneDimensionsForGrid(stage.options, handler, gridIndex, request.baseZone);
    const QuorArgListHandle arguments = stage.arguments;
    const auto append = [arguments](const char* key, std::int64_t value) {
        return QuorUtilArgListAppendInt(arguments, key, value);
    };
    QuorUtilArgListClear(arguments);
    if (request.shareNodeMap && isUnstructured && !append("ConnectShareZone", request.baseZone))
        return false;
    if (!append("ZoneType", zoneTypeOf(handler, dims)))
        return false;
    if (stage.assignStrandIDs && !append("StrandID", request.strand))
        return false;
    constexpr std::int64_t noStorageYet = 1;
    const std::string name = handler.getZoneName(gridIndex);
    return QuorUtilArgListAppendString(arguments, "Name", name.c_str()) && append("IMax", dims.i) &&
           append("JMax", dims.j) && append("KMax", dims.k) &&
           QuorUtilArgListAppendArray(arguments, "VarDataType", stage.varTypes.data()) &&
           append("DeferVarCreation", noStorageYet) && QuorUtilDataSetAddZoneX(arguments);
}

} // namespace quorvia::quorutildataio
