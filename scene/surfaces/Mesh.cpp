#include "surfaces/Mesh.h"

#include <algorithm>
#include <cstddef>

namespace plot3d::scene {

void Bounds_s::add(double x, double y, double z) {
    const std::array<double, 3> point = {x, y, z};
    if (isEmpty()) {
        least = most = point;
        return;
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        least[axis] = std::min(least[axis], point[axis]);
        most[axis] = std::max(most[axis], point[axis]);
    }
}

void Bounds_s::add(const Bounds_s& other) {
    if (other.isEmpty())
        return;
    add(other.least[0], other.least[1], other.least[2]);
    add(other.most[0], other.most[1], other.most[2]);
}

Place_s Mesh_s::placeOf(std::int64_t point) const {
    if (!nodes.empty())
        return {nodes[static_cast<std::size_t>(point)], 0, 0};
    const auto behind = std::upper_bound(
        patches.begin(), patches.end(), point,
        [](std::int64_t sought, const Patch_s& patch) { return sought < patch.firstPoint; });
    const Patch_s& patch = *(behind - 1);
    const Extent size = patch.box.extent();
    const std::int64_t within = point - patch.firstPoint;
    return {patch.box.i.first + within % size.i, patch.box.j.first + within / size.i % size.j,
            patch.box.k.first + within / size.i / size.j};
}

std::vector<char> drawnPoints(const Mesh_s& mesh) {
    if (mesh.hiddenCells == 0)
        return {};
    std::vector<char> drawn(static_cast<std::size_t>(mesh.pointCount()));
    for (const auto* cells : {&mesh.quads, &mesh.triangles, &mesh.lines})
        for (const std::int32_t point : *cells)
            drawn[static_cast<std::size_t>(point)] = 1;
    return drawn;
}

} // namespace plot3d::scene
