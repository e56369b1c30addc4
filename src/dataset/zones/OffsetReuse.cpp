#include "dataset/zones/OffsetReuse.h"

#include <memory>
#include <optional>
#include <string>

#include "dataset/items/ItemContext.h"
#include "dataset/items/NotedOffsets.h"
#include "dataset/items/Scalars.h"
#include "dataset/items/SetupProgress.h"
#include "dataset/ondemand/LoadOnDemand.h"
#include "dataset/ondemand/Plot3DVarRepo.h"
#include "plot3dfile/bytes/CheckedSize.h"

namespace quorvia::quorutildataio {

namespace {

bool shareOrCopy(bool mayShare, std::int32_t sourceZone, std::int32_t destinationZone,
                 std::int32_t var) {
    return (mayShare && QuorUtilDataValueShare(sourceZone, destinationZone, var)) ||
           (QuorUtilDataValueAlloc(destinationZone, var) &&
            QuorUtilDataValueCopy(sourceZone, destinationZone, var));
}

/// A load that fails next says so of a file that has nothing to do with it.
void reportUnshared(std::int32_t sourceZone, std::int32_t destinationZone, std::int32_t var) {
    if (QuorUtilInterruptIsSet())
        return; // told as such
    const std::string text = "Variable " + std::to_string(var) + " of zone " +
                             std::to_string(destinationZone) + " is that of zone " +
                             std::to_string(sourceZone) + ", but can be neither shared nor copied.";
    QuorUtilDialogErrMsg(text.c_str());
}

/// Points of a whole grid; nodes of an unstructured one.
std::optional<std::int64_t> countPoints(const Plot3DFile_s& file, std::int32_t grid) {
    const Plot3DGridDims_s& dims = file.gridDims[static_cast<std::size_t>(grid)];
    if (file.dataStructure == Plot3DDataStructure_Unstructured)
        return dims.i;
    CheckedSize points;
    points.addProduct({dims.i, dims.j, dims.k});
    return points.value();
}

/// One grid of a file whose fields are registered without a scan.
class GridReuse {
public:
    /// `layout` tells the positions, `source` holds the values.
    GridReuse(const Plot3DFile_s& layout, const Plot3DFile_s& source, std::int32_t grid,
              std::int32_t hostZone)
        : layout_(layout), grid_(grid), hostZone_(hostZone), steps_(hostZone, grid + 1, source),
          variable_(Plot3DVarRepo::instance().getVariable(source)),
          points_(countPoints(layout, grid)) {}

    bool registerVariables(std::int32_t varBase) {
        for (std::int32_t v = 1; v <= layout_.numVars; ++v)
            if (!registerField(v, varBase + v,
                               notedOffset(layout_.varOffsets, fieldEntry(layout_, grid_, v - 1))))
                return false;
        return true;
    }

    bool registerIBlank() {
        const std::int32_t var = layout_.numVars + 1;
        return registerField(var, var, notedOffset(layout_.iBlankOffsets, grid_));
    }

private:
    bool registerField(std::int32_t shownVar, std::int32_t var,
                       const std::optional<std::int64_t>& offset) {
        return steps_.step(shownVar) && offset && points_ &&
               registerLodVariable(variable_, hostZone_, var, *offset, *points_);
    }

    const Plot3DFile_s& layout_;
    std::int32_t grid_; // from 0
    std::int32_t hostZone_;
    FieldSteps steps_;
    std::shared_ptr<Plot3DVariable_s> variable_;
    std::optional<std::int64_t> points_;
};

bool rereadScalarsAt(Plot3DFile_s& file, std::int64_t selected, std::int32_t zone,
                     const Plot3DItemContext_s& context) {
    const std::optional<std::int64_t> position = notedOffset(file.auxDataOffsets, selected);
    return position && file.stream->seek(*position) && rereadScalars(file, zone, context);
}

} // namespace

bool shareGridVariables(const Plot3DLoadOptions_s& options, const Plot3DFileHandler& handler,
                        std::int32_t numSpatialVars, std::int32_t sourceBaseZone,
                        std::int32_t destinationBaseZone, bool hasIBlank) {
    // A zone that got the solution appended has its own grid; a copy onto itself would erase it.
    if (sourceBaseZone == destinationBaseZone)
        return true;
    const bool mayShare = QuorUtilDataSetIsSharingAllowed();
    const std::int32_t lastVar = numSpatialVars + (hasIBlank ? 1 : 0);
    std::int32_t distance = 0;
    for (std::int32_t grid = 0; grid < handler.getNumGrids(); ++grid) {
        if (!isGridSelected(options.gridSet, std::int64_t{grid} + 1))
            continue;
        const std::int32_t source = sourceBaseZone + distance;
        const std::int32_t destination = destinationBaseZone + distance++;
        for (std::int32_t var = 1; var <= lastVar; ++var) {
            // Of a zone of other loads, which need not have values of it to give.
            if (!handler.hasGridFile() && QuorUtilDataValueIsPassive(source, var))
                continue;
            if (!shareOrCopy(mayShare, source, destination, var)) {
                reportUnshared(source, destination, var);
                return false;
            }
        }
    }
    return true;
}

bool reuseGridOffsets(const Plot3DFile_s& primary, const Plot3DLoadOptions_s& options,
                      std::int32_t firstZone, const Plot3DFile_s& current) {
    std::int32_t zone = firstZone;
    for (std::int32_t grid = 0; grid < primary.numGrids; ++grid) {
        if (!isGridSelected(options.gridSet, std::int64_t{grid} + 1))
            continue;
        GridReuse reuse(primary, current, grid, zone++);
        if (!reuse.registerVariables(0) || (primary.hasIBlank && !reuse.registerIBlank()))
            return false;
    }
    return true;
}

bool reuseSolutionOffsets(Plot3DFile_s& file, const Plot3DLoadOptions_s& options,
                          std::int32_t firstZoneOfLoad, std::int32_t firstZone,
                          std::int32_t varBase) {
    const Plot3DItemContext_s context = makeItemContext(options, firstZoneOfLoad, firstZone);
    std::int32_t selected = 0;
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid) {
        if (!isGridSelected(options.gridSet, std::int64_t{grid} + 1))
            continue;
        const std::int32_t zone = firstZone + selected;
        if (!GridReuse(file, file, grid, zone).registerVariables(varBase) ||
            (file.auxDataOffsets && !rereadScalarsAt(file, selected, zone, context)))
            return false;
        ++selected;
    }
    return true;
}

} // namespace quorvia::quorutildataio
