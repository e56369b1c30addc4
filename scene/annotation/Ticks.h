// Round numbers along an axis.
#pragma once

#include <string>
#include <vector>

#include "view/View.h"

namespace plot3d::scene {

struct Tick_s {
    double value = 0;
    std::string label; // with as many digits as tell the ticks apart
};

/// Multiples of 1, 2 or 5 times a power of ten that lie in the range, about `wanted` of them, but
/// two at least where the range allows it.
std::vector<Tick_s> ticksOf(const Range_s& range, int wanted);

} // namespace plot3d::scene
