// Derivatives along x, y and z at the nodes of a curvilinear grid: differences along I, J and K,
// central inside and one-sided at the ends, brought to x, y and z by the metrics of the same
// differences. They are exact for whatever is linear in x, y and z, however the grid is bent.
//
// Where the grid has one point along a direction, nothing changes along the normal of the surface
// that is left: so a plane flow has its derivatives in the plane. A line of points has none.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include <plot3d/Box.h>

#include "flow/Vector.h"

namespace plot3dlib {

/// What it takes to differentiate at one node.
class NodeGradient {
public:
    /// Of the values of all nodes. Infinite or not a number where cells of no volume meet.
    Vector of(std::span<const double> values) const;

private:
    friend class NodeGradients;
    /// Of the values at two nodes beside this one. Whether they are one index apart or two cancels
    /// out: values and coordinates are differenced alike.
    struct Difference_s {
        std::size_t plus;
        std::size_t minus; // the same as plus along a direction with one point
        double of(std::span<const double> values) const { return values[plus] - values[minus]; }
    };
    std::array<Difference_s, 3> differences_;
    std::array<Vector, 3> metrics_; // differences along I, J, K for a step along x, y, z
};

class NodeGradients {
public:
    /// The coordinates are borrowed; z may be empty for 0.
    NodeGradients(const plot3d::Extent& size,
                  const std::array<std::span<const double>, 3>& coordinates)
        : size_(size), coordinates_(coordinates) {}

    /// Indices from 0.
    NodeGradient at(std::int64_t i, std::int64_t j, std::int64_t k) const;

private:
    plot3d::Extent size_;
    std::array<std::span<const double>, 3> coordinates_;
};

} // namespace plot3dlib
