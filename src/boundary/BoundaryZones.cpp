#include "boundary/BoundaryZones.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "boundary/BoundaryConditions.h"
#include "boundary/BoundaryFields.h"
#include "dataset/items/AuxDataItem.h"
#include "dataset/items/SetupProgress.h"
#include "instructions/ValueText.h"
#include "plot3dfile/file/OpenedFile.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {

namespace {

std::string rangeText(std::int32_t start, std::int32_t end) {
    return "[" + std::to_string(start) + "-" + std::to_string(end) + "]";
}

/// Null if there is no memory.
HostString zoneNameOf(const Plot3DBoundary_s& boundary, const char* boundaryName) {
    const std::size_t size = std::strlen(boundaryName) + 1;
    HostString name(QuorUtilStringAlloc(static_cast<std::int64_t>(size), "Boundary Name"));
    if (!name)
        return name;
    std::memcpy(name.get(), boundaryName, size);
    appendToHostString(name, ": I" + rangeText(boundary.iStart, boundary.iEnd) + ",J" +
                                 rangeText(boundary.jStart, boundary.jEnd) + ",K" +
                                 rangeText(boundary.kStart, boundary.kEnd));
    return name;
}

/// An item that the host refuses is no reason to stop.
bool labelZone(std::int32_t zone, const char* boundaryName) {
    const QuorAuxDataHandle auxData = QuorUtilAuxDataZoneGetRef(zone);
    if (auxData == nullptr)
        return true;
    static_cast<void>(setAuxDataItem(auxData, "Common.IsBoundaryZone", "Y"));
    const HostString condition(
        QuorUtilStringAlloc(boundaryConditionSize, "Boundary Type Condition"));
    if (!condition)
        return false;
    classifyBoundary(boundaryName, condition.get());
    static_cast<void>(setAuxDataItem(auxData, "Common.BoundaryCondition", condition.get()));
    return true;
}

/// Nothing if the host does not tell: zones numbered from a guess would be somebody else's.
std::optional<std::int32_t> countZones() {
    std::int32_t count = 0;
    if (!QuorUtilDataSetGetInfo(nullptr, &count, nullptr))
        return std::nullopt;
    return count;
}

/// The zones of all boundaries, time step by time step.
class BoundaryZones {
public:
    BoundaryZones(const Plot3DLoadOptions_s& options, std::vector<Plot3DFileHandler>& handlers,
                  const Plot3DBoundary_s* boundaries, QuorStringListHandle names,
                  bool assignStrandIDs, const HostArray<std::int32_t>& parentZones,
                  QuorSetHandle zonesAdded)
        : options_(options), handlers_(handlers), boundaries_(boundaries), names_(names),
          assignStrandIDs_(assignStrandIDs), parentZones_(parentZones), zonesAdded_(zonesAdded),
          gridFile_(*handlers.front().gridFile),
          gridVarCount_(gridFile_.numVars + (gridFile_.hasIBlank ? 1 : 0)) {}

    bool create() {
        const OpenedFile opened(gridFile_);
        if (!opened)
            return false;
        gridCopy_ = copyForFields(gridFile_);
        baseStrand_ = assignStrandIDs_ ? QuorUtilDataSetGetMaxStrandID() : 0;
        showOnCurrentTask("Loading Boundary Zones...");
        const std::size_t stepCount = assignStrandIDs_ ? handlers_.size() : 1;
        for (std::size_t step = 0; step < stepCount; ++step)
            if (!addTimeStep(handlers_[step], static_cast<std::int32_t>(step)))
                return false;
        return true;
    }

private:
    bool addTimeStep(Plot3DFileHandler& handler, std::int32_t step) {
        const std::optional<std::int32_t> zoneCount = countZones();
        if (!zoneCount)
            return false;
        const std::int32_t zonesBefore = *zoneCount;
        stepBase_ = zonesBefore;
        if (step == 0)
            firstBase_ = zonesBefore;
        const double time = assignStrandIDs_ ? handler.getSolutionTime() : 0.0;
        std::int64_t strand = strandBefore(zonesBefore);
        std::int32_t distance = 0;
        for (const Plot3DBoundary_s* boundary = boundaries_; boundary != nullptr;
             boundary = boundary->next.get()) {
            strand += assignStrandIDs_ ? 1 : 0;
            ++distance;
            if (strand > std::numeric_limits<std::int32_t>::max() ||
                !addZone(*boundary, zonesBefore + distance, static_cast<std::int32_t>(strand), time,
                         step))
                return false;
        }
        return setUpFlowVars(handler, zonesBefore);
    }

    /// The strand that those of this time step follow on.
    std::int32_t strandBefore(std::int32_t lastZone) const {
        if (assignStrandIDs_ && options_.addToExistingStrands && lastZone > 0)
            return QuorUtilZoneGetStrandID(lastZone);
        return baseStrand_;
    }

    /// The zone, its grid and its labels.
    bool addZone(const Plot3DBoundary_s& boundary, std::int32_t zone, std::int32_t strand,
                 double time, std::int32_t step) const {
        const HostString name(QuorUtilStringListGetString(names_, boundary.nameIndex));
        const Plot3DBoundaryRanges_s ranges = rangesOf(boundary);
        return name &&
               addBoundaryZone(boundary, name.get(), countInRange(ranges.i), countInRange(ranges.j),
                               countInRange(ranges.k), zone, strand, time, assignStrandIDs_,
                               parentOf(boundary, step), zonesAdded_) &&
               setUpGridVars(boundary, zone, step) && labelZone(zone, name.get());
    }

    Plot3DBoundaryRanges_s rangesOf(const Plot3DBoundary_s& boundary) const {
        return boundaryRanges(boundary, options_.iRange.skip, options_.jRange.skip,
                              options_.kRange.skip);
    }

    /// The first zone that shows the boundary's grid at this time step; 0 if none does.
    std::int32_t parentOf(const Plot3DBoundary_s& boundary, std::int32_t step) const {
        const std::int64_t grid =
            boundary.gridNumber +
            (assignStrandIDs_ ? std::int64_t{step} * gridFile_.numGrids : std::int64_t{0});
        const auto* const found = std::find(parentZones_.begin(), parentZones_.end(), grid);
        return found != parentZones_.end()
                   ? static_cast<std::int32_t>(found - parentZones_.begin()) + 1
                   : 0;
    }

    /// Later time steps take the grid from the first where the host lets them.
    bool setUpGridVars(const Plot3DBoundary_s& boundary, std::int32_t zone,
                       std::int32_t step) const {
        const std::int32_t sourceZone = zone - (stepBase_ - firstBase_);
        if (step == 0 || !mayShare(sourceZone, zone))
            return setUpVars(gridFile_, gridCopy_, boundary, zone, gridVarCount_, 1);
        for (std::int32_t var = 1; var <= gridVarCount_; ++var)
            if (!QuorUtilDataValueShare(sourceZone, zone, var)) // refused all the same
                return setUpVars(gridFile_, gridCopy_, boundary, zone, gridVarCount_, 1);
        return true;
    }

    bool mayShare(std::int32_t sourceZone, std::int32_t zone) const {
        for (std::int32_t var = 1; var <= gridVarCount_; ++var)
            if (!QuorUtilDataValueIsSharingOk(sourceZone, zone, var))
                return false;
        return true;
    }

    bool setUpFlowVars(const Plot3DFileHandler& handler, std::int32_t zonesBefore) const {
        const Plot3DFileHandler& first = handlers_.front();
        if (first.hasSolutionFile())
            return handler.hasSolutionFile() && setUpFile(*handler.solutionFile, zonesBefore);
        // Each function file begins at the same variable: the last one is what the zones show.
        for (Plot3DFile_s* file : handler.functionFiles)
            if (!setUpFile(*file, zonesBefore))
                return false;
        return true;
    }

    bool setUpFile(Plot3DFile_s& file, std::int32_t zonesBefore) const {
        const OpenedFile opened(file);
        if (!opened)
            return false;
        const Plot3DSharedFile copy = copyForFields(file);
        std::int32_t zone = zonesBefore;
        for (const Plot3DBoundary_s* boundary = boundaries_; boundary != nullptr;
             boundary = boundary->next.get())
            if (!setUpVars(file, copy, *boundary, ++zone, gridVarCount_ + file.numVars,
                           gridVarCount_ + 1))
                return false;
        return true;
    }

    bool setUpVars(const Plot3DFile_s& file, const Plot3DSharedFile& copy,
                   const Plot3DBoundary_s& boundary, std::int32_t zone, std::int32_t lastVar,
                   std::int32_t firstVar) const {
        return setUpBoundaryVars(file, copy, options_.iRange.skip, options_.jRange.skip,
                                 options_.kRange.skip, boundary, zone, lastVar, firstVar);
    }

    const Plot3DLoadOptions_s& options_;
    std::vector<Plot3DFileHandler>& handlers_;
    const Plot3DBoundary_s* boundaries_;
    QuorStringListHandle names_;
    const bool assignStrandIDs_;
    const HostArray<std::int32_t>& parentZones_;
    QuorSetHandle zonesAdded_;
    Plot3DFile_s& gridFile_;
    const std::int32_t gridVarCount_; // I-blank counted
    Plot3DSharedFile gridCopy_;
    std::int32_t baseStrand_ = 0;
    std::int32_t firstBase_ = 0; // zones ahead of the first time step's boundaries
    std::int32_t stepBase_ = 0;  // and ahead of those of the step at work
};

} // namespace

bool createBoundaryZones(const Plot3DLoadOptions_s& options,
                         std::vector<Plot3DFileHandler>& handlers,
                         const Plot3DBoundary_s* boundaries, QuorStringListHandle names,
                         bool assignStrandIDs, const HostArray<std::int32_t>& parentZones,
                         QuorSetHandle zonesAdded) {
    if (handlers.empty() || !handlers.front().hasGridFile())
        return false;
    return BoundaryZones(options, handlers, boundaries, names, assignStrandIDs, parentZones,
                         zonesAdded)
        .create();
}

bool addBoundaryZone(const Plot3DBoundary_s& boundary, const char* name, std::int64_t numI,
                     std::int64_t numJ, std::int64_t numK, std::int32_t zone, std::int32_t strand,
                     double solutionTime, bool assignStrandIDs, std::int32_t parentZone,
                     QuorSetHandle zonesAdded) {
    const HostString zoneName = zoneNameOf(boundary, name);
    const HostArgList arguments(QuorUtilArgListAlloc());
    if (!zoneName || !arguments)
        return false;
    const QuorArgListHandle list = arguments.get();
    const auto append = [list](const char* key, std::int64_t value) {
        return QuorUtilArgListAppendInt(list, key, value);
    };
    if (assignStrandIDs && (!append("StrandID", strand) ||
                            !QuorUtilArgListAppendDouble(list, "SolutionTime", solutionTime)))
        return false;
    if (parentZone != 0 && !append("ParentZone", parentZone))
        return false;
    constexpr std::int64_t noStorageYet = 1;
    return QuorUtilArgListAppendString(list, "Name", zoneName.get()) &&
           append("ZoneType", QuorZoneType_Ordered) && append("IMax", numI) &&
           append("JMax", numJ) && append("KMax", numK) &&
           append("DeferVarCreation", noStorageYet) && QuorUtilDataSetAddZoneX(list) &&
           QuorUtilSetAddMember(zonesAdded, zone, true);
}

} // namespace quorvia::quorutildataio
