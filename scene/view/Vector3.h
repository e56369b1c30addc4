// Three numbers along x, y and z.
#pragma once

#include <array>

namespace plot3d::scene {

using Vector3 = std::array<double, 3>;

inline Vector3 cross(const Vector3& a, const Vector3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

} // namespace plot3d::scene
