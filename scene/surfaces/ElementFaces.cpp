#include "surfaces/ElementFaces.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace plot3d::scene {

namespace {

template <std::size_t cornerCount>
struct Face_s {
    std::array<std::int32_t, cornerCount> key; // its corners, ascending
    std::array<std::int32_t, cornerCount> corners;
};

template <std::size_t cornerCount, std::size_t faceCount>
std::vector<std::int32_t>
facesOfOne(const std::vector<std::int32_t>& nodeMap, std::size_t nodesEach,
           const std::array<std::array<std::size_t, cornerCount>, faceCount>& faces) {
    std::vector<Face_s<cornerCount>> all;
    all.reserve(nodeMap.size() / nodesEach * faceCount);
    for (std::size_t element = 0; element + nodesEach <= nodeMap.size(); element += nodesEach)
        for (const auto& face : faces) {
            Face_s<cornerCount> one;
            for (std::size_t corner = 0; corner < cornerCount; ++corner)
                one.corners[corner] = nodeMap[element + face[corner]];
            one.key = one.corners;
            std::sort(one.key.begin(), one.key.end());
            all.push_back(one);
        }
    std::sort(all.begin(), all.end(),
              [](const auto& one, const auto& other) { return one.key < other.key; });
    std::vector<std::int32_t> outer;
    for (auto face = all.begin(); face != all.end();) {
        const auto next = std::find_if(face, all.end(),
                                       [&](const auto& other) { return other.key != face->key; });
        if (next - face == 1)
            outer.insert(outer.end(), face->corners.begin(), face->corners.end());
        face = next;
    }
    return outer;
}

constexpr std::array<std::array<std::size_t, 3>, 4> facesOfTetrahedron = {
    {{0, 2, 1}, {0, 1, 3}, {1, 2, 3}, {0, 3, 2}}};
constexpr std::array<std::array<std::size_t, 4>, 6> facesOfBrick = {
    {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4}, {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}}};

} // namespace

Faces_s outerFaces(ZoneKind kind, const std::vector<std::int32_t>& nodeMap) {
    switch (kind) {
    case ZoneKind::Triangles:
        return {nodeMap, {}};
    case ZoneKind::Quadrilaterals:
        return {{}, nodeMap};
    case ZoneKind::Tetrahedra:
        return {facesOfOne(nodeMap, 4, facesOfTetrahedron), {}};
    case ZoneKind::Bricks:
        return {{}, facesOfOne(nodeMap, 8, facesOfBrick)};
    case ZoneKind::Ordered:
        break;
    }
    return {};
}

} // namespace plot3d::scene
