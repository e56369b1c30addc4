// The outer faces of the elements of an unstructured zone.
#pragma once

#include <cstdint>
#include <vector>

#include <plot3d/Zone.h>

namespace plot3d::scene {

/// Corners as nodes of the zone, from 0: three for each triangle, four for each quadrilateral.
struct Faces_s {
    std::vector<std::int32_t> triangles;
    std::vector<std::int32_t> quads;
};

/// Elements that are faces themselves, or the faces that one solid element alone has. `nodeMap`:
/// the corners of each element, as DataSet::nodeMap gives them.
Faces_s outerFaces(ZoneKind kind, const std::vector<std::int32_t>& nodeMap);

} // namespace plot3d::scene
