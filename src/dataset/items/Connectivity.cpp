#include "dataset/items/Connectivity.h"

#include <string>

#include "dataset/items/SetupProgress.h"
#include "plot3dfile/numbers/NumberStream.h"

namespace quorvia::quorutildataio {

namespace {

bool readElements(Plot3DFile_s& file, bool store, QuorNodeMapHandle nodeMap,
                  const Plot3DGridDims_s& dims) {
    const std::int32_t nodes = dims.i;
    const std::int32_t triangles = dims.j;
    const std::int32_t tetrahedra = dims.k;
    bool ok = true;
    if (triangles > 0)
        ok = readElementNodes(file, store, nodeMap, triangles, nodes, triangleCorners) &&
             skipIntegers(file, triangles);
    // A grid has one kind of element only, so that this never hides a failure of the triangles.
    if (tetrahedra > 0)
        ok = readElementNodes(file, store, nodeMap, tetrahedra, nodes, tetrahedronCorners);
    return ok;
}

} // namespace

bool setUpConnectivityItem(Plot3DFile_s& file, std::int32_t grid, std::int32_t zone, bool include,
                           bool report, const Plot3DItemContext_s& context) {
    QuorNodeMapHandle nodeMap = nullptr;
    if (include) {
        const std::int32_t hostZone = context.firstZone + zone;
        showConnectivity(hostZone, grid + 1, file);
        nodeMap = QuorUtilDataNodeGetRef(hostZone);
        if (nodeMap == nullptr)
            return false;
    }
    const bool ok =
        readElements(file, include, nodeMap, file.gridDims[static_cast<std::size_t>(grid)]);
    if (!ok && report && !file.stream->wasStopped())
        QuorUtilDialogErrMsg(
            ("Corrupt Connectivity List, Grid=" + std::to_string(grid + 1) + ".").c_str());
    return ok;
}

bool readElementNodes(Plot3DFile_s& file, bool store, QuorNodeMapHandle nodeMap,
                      std::int32_t elementCount, std::int32_t nodeCount, std::int32_t corners) {
    for (std::int64_t element = 1; element <= elementCount; ++element)
        for (std::int32_t corner = 1; corner <= corners; ++corner) {
            std::int32_t node = 0;
            if (!readInteger(file, node) || node < 1 || node > nodeCount)
                return false;
            if (store)
                QuorUtilDataNodeSetByRef(nodeMap, element, corner, node);
        }
    return true;
}

bool skipIntegers(Plot3DFile_s& file, std::int32_t count) {
    for (std::int32_t i = 0; i < count; ++i) {
        std::int32_t ignored = 0;
        if (!readInteger(file, ignored))
            return false;
    }
    return true;
}

} // namespace quorvia::quorutildataio
