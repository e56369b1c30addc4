#include "console/Words.h"

#include <array>
#include <cmath>
#include <cstdint>

#include <fmt/core.h>

namespace console {

std::string roughNumber(double value) {
    return fmt::format("{:.7g}", value == 0 ? 0.0 : value);
}

std::string roughBytes(double byteCount) {
    constexpr std::array units = {"bytes", "kB", "MB", "GB", "TB", "PB"};
    constexpr double next = 999.5; // would be shown as 1000
    std::size_t unit = 0;
    while (byteCount >= next && unit + 1 < units.size()) {
        byteCount /= 1000;
        ++unit;
    }
    const bool hasFraction = unit > 0 && byteCount < 9.95;
    return fmt::format("{:.{}f} {}", byteCount, hasFraction ? 1 : 0, units[unit]);
}

std::string roughSeconds(double seconds) {
    const auto whole = static_cast<std::int64_t>(std::ceil(seconds));
    if (whole < 60)
        return fmt::format("{} s", whole);
    if (whole < 3600)
        return fmt::format("{} min {} s", whole / 60, whole % 60);
    return fmt::format("{} h {} min", whole / 3600, whole % 3600 / 60);
}

} // namespace console
