// Sizes that stop at the largest one instead of running over it.
#pragma once

#include <cstdint>
#include <limits>

namespace plot3dlib {

inline constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

/// Of two that are not negative.
inline std::int64_t sum(std::int64_t a, std::int64_t b) {
    return a > largest - b ? largest : a + b;
}

} // namespace plot3dlib
