#include "console/Words.h"

#include <array>
#include <cmath>

#include <fmt/core.h>

namespace console {

std::string grouped(std::int64_t number) {
    const std::string digits = std::to_string(number);
    std::string result;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        const bool isBehindDigit = place > (number < 0 ? 1U : 0U);
        if (isBehindDigit && (digits.size() - place) % 3 == 0)
            result += ',';
        result += digits[place];
    }
    return result;
}

std::string counted(std::int64_t count, std::string_view one, std::string_view many) {
    return fmt::format("{} {}", grouped(count), count == 1 ? one : many);
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
