#include "plot3dsample/BallMesh.h"

#include <cmath>
#include <utility>

namespace quorvia::plot3dsample {

namespace {

/// The orders in which the three edges of a cell are walked from its first to its last corner: each
/// walk is a tetrahedron. The odd ones would have negative volume.
struct EdgeWalk_s {
    std::array<std::size_t, 3> axes;
    bool isOdd;
};
constexpr std::array<EdgeWalk_s, 6> edgeWalks = {{{{0, 1, 2}, false},
                                                  {{1, 2, 0}, false},
                                                  {{2, 0, 1}, false},
                                                  {{0, 2, 1}, true},
                                                  {{2, 1, 0}, true},
                                                  {{1, 0, 2}, true}}};

/// Corners of a face's two triangles, as steps along the face's two directions.
constexpr std::array<std::array<std::array<std::int32_t, 2>, 3>, 2> faceTriangles = {{
    {{{0, 0}, {1, 0}, {1, 1}}},
    {{{0, 0}, {1, 1}, {0, 1}}},
}};

Lattice_t unpack(std::int64_t index, std::int64_t count) {
    return {static_cast<std::int32_t>(index % count),
            static_cast<std::int32_t>(index / count % count),
            static_cast<std::int32_t>(index / count / count)};
}

std::int32_t nodeNumber(std::int64_t index) {
    return static_cast<std::int32_t>(index + 1);
}

} // namespace

Point_t ballPoint(const Lattice_t& place, std::int32_t cellsPerEdge) {
    Point_t square = {};
    Point_t cube = {};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        cube[axis] = 2.0 * place[axis] / cellsPerEdge - 1;
        square[axis] = cube[axis] * cube[axis];
    }
    Point_t ball = {};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double a = square[(axis + 1) % 3];
        const double b = square[(axis + 2) % 3];
        ball[axis] = cube[axis] * std::sqrt(1 - a / 2 - b / 2 + a * b / 3);
    }
    return ball;
}

std::int64_t BallVolume::nodeCount() const {
    const std::int64_t perEdge = std::int64_t{cells_} + 1;
    return perEdge * perEdge * perEdge;
}

std::int64_t BallVolume::elementCount() const {
    return std::int64_t{6} * cells_ * cells_ * cells_;
}

Lattice_t BallVolume::lattice(std::int32_t node) const {
    return unpack(node, std::int64_t{cells_} + 1);
}

std::int32_t BallVolume::corner(std::int64_t element, std::int32_t corner) const {
    const auto& [axes, isOdd] = edgeWalks[static_cast<std::size_t>(element % 6)];
    if (isOdd && (corner == 1 || corner == 2))
        corner = 3 - corner;
    Lattice_t place = unpack(element / 6, cells_);
    for (std::int32_t step = 0; step < corner; ++step)
        ++place[axes[static_cast<std::size_t>(step)]];
    const std::int64_t perEdge = std::int64_t{cells_} + 1;
    return nodeNumber(place[0] + perEdge * (place[1] + perEdge * place[2]));
}

std::int64_t BallSurface::layerSize() const {
    return (std::int64_t{cells_} + 1) * (cells_ + 1);
}

std::int64_t BallSurface::ringSize() const {
    return std::int64_t{4} * cells_;
}

std::int64_t BallSurface::nodeCount() const {
    return 2 * layerSize() + (cells_ - 1) * ringSize();
}

std::int64_t BallSurface::elementCount() const {
    return std::int64_t{12} * cells_ * cells_;
}

/// The bottom layer, the rings above it from below, the top layer. A ring runs round the cube from
/// the corner (0, 0), first along the first direction.
std::int64_t BallSurface::nodeIndex(const Lattice_t& place) const {
    const auto [i, j, k] = place;
    const std::int64_t inLayer = i + std::int64_t{j} * (cells_ + 1);
    if (k == 0)
        return inLayer;
    const std::int64_t ringsBelow = layerSize() + (k - 1) * ringSize();
    if (k == cells_)
        return ringsBelow + inLayer;
    if (j == 0)
        return ringsBelow + i;
    if (i == cells_)
        return ringsBelow + cells_ + j;
    if (j == cells_)
        return ringsBelow + 2 * std::int64_t{cells_} + (cells_ - i);
    return ringsBelow + 3 * std::int64_t{cells_} + (cells_ - j);
}

Lattice_t BallSurface::lattice(std::int32_t node) const {
    const std::int64_t perEdge = std::int64_t{cells_} + 1;
    if (node < layerSize())
        return unpack(node, perEdge);
    const std::int64_t inRings = node - layerSize();
    const std::int64_t rings = inRings / ringSize();
    if (rings >= cells_ - 1) {
        Lattice_t top = unpack(inRings - (cells_ - 1) * ringSize(), perEdge);
        top[2] = cells_;
        return top;
    }
    const auto k = static_cast<std::int32_t>(rings + 1);
    const auto place = static_cast<std::int32_t>(inRings % ringSize());
    const std::int32_t along = place % cells_;
    switch (place / cells_) {
    case 0:
        return {along, 0, k};
    case 1:
        return {cells_, along, k};
    case 2:
        return {cells_ - along, cells_, k};
    default:
        return {0, cells_ - along, k};
    }
}

std::int32_t BallSurface::corner(std::int64_t element, std::int32_t corner) const {
    const std::int64_t perFace = std::int64_t{2} * cells_ * cells_;
    const auto face = static_cast<std::size_t>(element / perFace);
    const std::int64_t inFace = element % perFace;
    const Lattice_t cell = unpack(inFace / 2, cells_);
    const auto& step =
        faceTriangles[static_cast<std::size_t>(inFace % 2)][static_cast<std::size_t>(corner)];
    const std::size_t axis = face / 2;
    const bool isFarFace = face % 2 == 1;
    // On the near faces the two directions change places, so that these too face outwards.
    std::size_t first = (axis + 1) % 3;
    std::size_t second = (axis + 2) % 3;
    if (!isFarFace)
        std::swap(first, second);
    Lattice_t place = {};
    place[axis] = isFarFace ? cells_ : 0;
    place[first] = cell[0] + step[0];
    place[second] = cell[1] + step[1];
    return nodeNumber(nodeIndex(place));
}

} // namespace quorvia::plot3dsample
