#include "flow/NodeGradients.h"

#include <algorithm>
#include <cmath>

namespace plot3dlib {

namespace {

Vector unit(const Vector& vector) {
    return scaled(vector, 1.0 / std::sqrt(dot(vector, vector)));
}

} // namespace

Vector NodeGradient::of(std::span<const double> values) const {
    Vector gradient = {};
    for (std::size_t direction = 0; direction < 3; ++direction)
        gradient = sum(gradient, scaled(metrics_[direction], differences_[direction].of(values)));
    return gradient;
}

NodeGradient NodeGradients::at(std::int64_t i, std::int64_t j, std::int64_t k) const {
    const std::array<std::int64_t, 3> indices{i, j, k};
    const std::array<std::int64_t, 3> counts{size_.i, size_.j, size_.k};
    const std::array<std::int64_t, 3> strides{1, size_.i, size_.i * size_.j};
    const std::int64_t node = i + j * strides[1] + k * strides[2];

    NodeGradient gradient;
    std::array<Vector, 3> along; // differences of x, y, z
    for (std::size_t n = 0; n < 3; ++n) {
        const std::int64_t up = std::min(indices[n] + 1, counts[n] - 1) - indices[n];
        const std::int64_t down = indices[n] - std::max<std::int64_t>(indices[n] - 1, 0);
        auto& difference = gradient.differences_[n];
        difference = {static_cast<std::size_t>(node + up * strides[n]),
                      static_cast<std::size_t>(node - down * strides[n])};
        for (std::size_t axis = 0; axis < 3; ++axis)
            along[n][axis] = coordinates_[axis].empty() ? 0.0 : difference.of(coordinates_[axis]);
    }
    for (std::size_t n = 0; n < 3; ++n)
        if (counts[n] == 1)
            along[n] = unit(cross(along[(n + 1) % 3], along[(n + 2) % 3]));

    const double volume = dot(along[0], cross(along[1], along[2]));
    for (std::size_t n = 0; n < 3; ++n)
        gradient.metrics_[n] = scaled(cross(along[(n + 1) % 3], along[(n + 2) % 3]), 1.0 / volume);
    return gradient;
}

} // namespace plot3dlib
