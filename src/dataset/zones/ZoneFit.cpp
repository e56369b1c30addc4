#include "dataset/zones/ZoneFit.h"

#include <optional>

#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/timestep/GridPoints.h"

namespace quorvia::quorutildataio {

namespace {

/// A 1-D file has one grid, which a walk takes whatever is selected.
bool isWalked(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options, std::int32_t grid) {
    return file.dataStructure == Plot3DDataStructure_1D ||
           isGridSelected(options.gridSet, std::int64_t{grid} + 1);
}

/// Walks the file's grids beside the zones from `firstZone` on. `pointsOf` gives the points of the
/// zone that a grid is to fill, empty if there is none.
template <typename PointsOfZone>
bool fits(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options, std::int32_t firstZone,
          const PointsOfZone& pointsOf) {
    std::int32_t zone = firstZone;
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid) {
        if (!isWalked(file, options, grid))
            continue;
        const std::optional<std::int64_t> points = pointsOf(grid, zone);
        if (!points || points != countSelected(resolveGridRanges(options, file, grid)))
            return false;
        ++zone;
    }
    return true;
}

std::optional<std::int64_t> pointsOfExistingZone(std::int32_t zone) {
    std::int64_t i = 0;
    std::int64_t j = 0;
    std::int64_t k = 0;
    QuorUtilZoneGetInfo(zone, &i, &j, &k, nullptr);
    if (QuorUtilZoneGetType(zone) != QuorZoneType_Ordered)
        return i;
    CheckedSize points;
    points.addProduct({i, j, k});
    return points.value();
}

/// Points of the zone of a grid: this load made it from the time step's dimensions, unless the
/// first time step, without a grid file, goes onto zones that were there.
std::optional<std::int64_t> pointsOfZone(const Plot3DFileSetRequest_s& request, std::int32_t grid,
                                         std::int32_t zone) {
    const Plot3DFileHandler& handler = request.handler;
    if (request.isFirstFileSet && !handler.hasGridFile())
        return pointsOfExistingZone(zone);
    const Plot3DLoadOptions_s& options = request.options;
    return countSelected(
        resolveGridRanges(options.iRange, options.jRange, options.kRange, handler.getGridDims(grid),
                          handler.getDataStructure() == Plot3DDataStructure_Unstructured));
}

bool hasZone(const Plot3DFileSetRequest_s& request, std::int32_t grid) {
    return grid < request.handler.getNumGrids() &&
           isGridSelected(request.options.gridSet, std::int64_t{grid} + 1);
}

} // namespace

bool fitsZones(const Plot3DFile_s& file, const Plot3DFileSetRequest_s& request) {
    return fits(
        file, request.options, request.firstZone, [&request](std::int32_t grid, std::int32_t zone) {
            return hasZone(request, grid) ? pointsOfZone(request, grid, zone) : std::nullopt;
        });
}

bool fitsExistingZones(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options,
                       std::int32_t firstZone, std::int32_t zoneCount) {
    return fits(file, options, firstZone, [zoneCount](std::int32_t, std::int32_t zone) {
        return zone <= zoneCount ? pointsOfExistingZone(zone) : std::nullopt;
    });
}

bool isSubsetTaken(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options) {
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid)
        if (isWalked(file, options, grid) && resolveGridRanges(options, file, grid).isSubset)
            return true;
    return false;
}

} // namespace quorvia::quorutildataio
