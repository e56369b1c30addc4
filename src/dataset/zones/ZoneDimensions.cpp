#include "dataset/zones/ZoneDimensions.h"

#include "dataset/items/Connectivity.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/TypedArrays.h"
#include "plot3dfile/timestep/GridPoints.h"

namespace quorvia::quorutildataio {

namespace {

Plot3DZoneDims_s elementZoneDims(const Plot3DGridDims_s& dims) {
    const std::int64_t nodes = dims.i;
    const std::int64_t triangles = dims.j;
    const std::int64_t tetrahedra = dims.k;
    if (triangles < 1)
        return {nodes, tetrahedra, tetrahedronCorners};
    return {nodes, triangles, triangleCorners};
}

/// A solution file knows the nodes only; the elements are those of a zone that is there.
Plot3DZoneDims_s dimsWithElementsOf(std::int32_t zone, std::int64_t nodes) {
    Plot3DZoneDims_s dims = {0, 0, 0};
    QuorUtilZoneGetInfo(zone, &dims.i, &dims.j, &dims.k, nullptr);
    dims.i = nodes;
    return dims;
}

} // namespace

Plot3DZoneDims_s zoneDimensionsForGrid(const Plot3DLoadOptions_s& options,
                                       const Plot3DFileHandler& handler, std::int32_t gridIndex,
                                       std::int32_t zone) {
    const Plot3DGridDims_s dims = handler.getGridDims(gridIndex);
    if (handler.getDataStructure() == Plot3DDataStructure_Unstructured)
        return handler.hasGridFile() ? elementZoneDims(dims) : dimsWithElementsOf(zone, dims.i);
    const Plot3DGridRanges_s ranges = resolveGridRanges(
        options.iRange, options.jRange, options.kRange, dims, /*isUnstructured=*/false);
    return {countInRange(ranges.i), countInRange(ranges.j), countInRange(ranges.k)};
}

} // namespace quorvia::quorutildataio
