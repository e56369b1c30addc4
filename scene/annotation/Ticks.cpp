#include "annotation/Ticks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace plot3d::scene {

namespace {

double roundStep(double atLeast) {
    const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const double factor : {1.0, 2.0, 5.0})
        if (factor * power >= atLeast * (1 - 1e-9))
            return factor * power;
    return 10 * power;
}

std::string labelOf(double value, double step, double largest) {
    std::array<char, 48> text = {};
    if (value == 0 && largest == 0)
        return "0";
    if (largest >= 1e6 || largest < 1e-4) {
        const int digits = std::max(0, static_cast<int>(std::floor(std::log10(largest) + 1e-9) -
                                                        std::floor(std::log10(step) + 1e-9)));
        std::snprintf(text.data(), text.size(), "%.*e", digits, value);
    } else {
        const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
        std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
    }
    return text.data();
}

} // namespace

std::vector<Tick_s> ticksOf(const Range_s& range, int wanted) {
    const double extent = range.most - range.least;
    if (!(extent > 0) || !std::isfinite(extent))
        return {};
    const double step = roundStep(extent / std::max(1, wanted));
    // Counted in steps, so that no error adds up.
    const double first = std::ceil(range.least / step - 1e-9);
    const double last = std::floor(range.most / step + 1e-9);
    if (!(std::abs(first) < 1e15) || !(std::abs(last) < 1e15))
        return {};
    const double largest = std::max(std::abs(first * step), std::abs(last * step));
    std::vector<Tick_s> ticks;
    for (double count = first; count <= last; count += 1) {
        const double value = count == 0 ? 0.0 : count * step;
        ticks.push_back({value, labelOf(value, step, largest)});
    }
    return ticks;
}

} // namespace plot3d::scene
