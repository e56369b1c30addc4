// A ball of radius 1, made of a cube of n x n x n cells by a smooth map, cut into tetrahedra; or
// its surface, cut into triangles. All is computed from indices; nothing is held in memory.
#pragma once

#include <array>
#include <cstdint>

#include "plot3dsample/FlowState.h"

namespace quorvia::plot3dsample {

/// Place on the lattice of the cube's corners, each coordinate from 0 to n.
using Lattice_t = std::array<std::int32_t, 3>;

/// Where the cube's lattice point comes to lie in the ball.
Point_t ballPoint(const Lattice_t& place, std::int32_t cellsPerEdge);

/// (n + 1)^3 nodes, 6 n^3 tetrahedra, all of positive volume: the corners 1, 2, 3 turn
/// counter-clockwise as seen from corner 4.
class BallVolume {
public:
    explicit BallVolume(std::int32_t cellsPerEdge) : cells_(cellsPerEdge) {}

    std::int64_t nodeCount() const;
    std::int64_t elementCount() const;
    Lattice_t lattice(std::int32_t node) const;

    /// Node number, from 1.
    std::int32_t corner(std::int64_t element, std::int32_t corner) const;

private:
    std::int32_t cells_;
};

/// 6 n^2 + 2 nodes, 12 n^2 triangles that face outwards.
class BallSurface {
public:
    explicit BallSurface(std::int32_t cellsPerEdge) : cells_(cellsPerEdge) {}

    std::int64_t nodeCount() const;
    std::int64_t elementCount() const;
    Lattice_t lattice(std::int32_t node) const;
    std::int32_t corner(std::int64_t element, std::int32_t corner) const;

private:
    /// Index from 0 of a lattice point on the cube's surface.
    std::int64_t nodeIndex(const Lattice_t& place) const;
    std::int64_t layerSize() const;
    std::int64_t ringSize() const;

    std::int32_t cells_;
};

} // namespace quorvia::plot3dsample
