// The element lists of an unstructured grid: triangles, a block that is ignored, tetrahedra. Read
// during the load, every node number tested.
#pragma once

#include <cstdint>

#include "dataset/items/ItemContext.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Nodes of one element.
constexpr std::int32_t triangleCorners = 3;
constexpr std::int32_t tetrahedronCorners = 4;

/// Reads the elements of one grid, with `include` into the node map of its zone. False (told):
/// a number can't be read or is no node, with `report`. False (not told): the zone has no node map,
/// or the user has stopped the read.
[[nodiscard]] bool setUpConnectivityItem(Plot3DFile_s& file, std::int32_t grid, std::int32_t zone,
                                         bool include, bool report,
                                         const Plot3DItemContext_s& context);

/// Reads `elementCount` elements of `corners` node numbers, each from 1 to `nodeCount`.
/// False (not told): one can't be read or is no node.
[[nodiscard]] bool readElementNodes(Plot3DFile_s& file, bool store, QuorNodeMapHandle nodeMap,
                                    std::int32_t elementCount, std::int32_t nodeCount,
                                    std::int32_t corners);

/// False (not told): there are not so many.
[[nodiscard]] bool skipIntegers(Plot3DFile_s& file, std::int32_t count);

} // namespace quorvia::quorutildataio
