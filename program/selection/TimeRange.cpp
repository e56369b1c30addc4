#include "selection/TimeRange.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include <plot3d/Error.h>

#include "selection/NumberList.h"

namespace plot3d::program {
namespace {

constexpr std::size_t timesToldAtMost = 10;

bool isSameTime(double one, double other) {
    return std::abs(one - other) <= 1e-6 * std::max(std::abs(one), std::abs(other));
}

struct Times_s {
    double first;
    double last;

    bool has(double time) const {
        return (time >= first || isSameTime(time, first)) &&
               (time <= last || isSameTime(time, last));
    }
};

double timeIn(std::string_view part, std::string_view whole) {
    const auto time = realNumber(part);
    if (!time)
        throw Error(ErrorKind::Usage,
                    fmt::format("\"{}\" is no time, no range of times such as 0.5:2, and neither "
                                "first nor last",
                                whole));
    return *time;
}

Times_s timesOf(std::string_view text, const std::vector<double>& times) {
    if (text == "first" || text == "last") {
        const double time = times.empty() ? 0.0 : text == "last" ? times.back() : times.front();
        return {time, time};
    }
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        const double time = timeIn(text, text);
        return {time, time};
    }
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::string_view first = text.substr(0, colon);
    const std::string_view last = text.substr(colon + 1);
    return {first.empty() ? -infinity : timeIn(first, text),
            last.empty() ? infinity : timeIn(last, text)};
}

std::string list(const std::vector<double>& times) {
    const std::size_t told = std::min(times.size(), timesToldAtMost);
    const auto end = times.begin() + static_cast<std::ptrdiff_t>(told);
    return fmt::format("{}{}", fmt::join(times.begin(), end, ", "),
                       told < times.size() ? fmt::format(" ... {}", times.back()) : "");
}

} // namespace

std::vector<std::size_t> parseTimes(std::string_view text, const std::vector<double>& times) {
    const Times_s wanted = timesOf(text, times);
    std::vector<std::size_t> indices;
    for (std::size_t index = 0; index < times.size(); ++index)
        if (wanted.has(times[index]))
            indices.push_back(index);
    if (indices.empty())
        throw Error(ErrorKind::Usage,
                    fmt::format("no time is {}; there are: {}", text, list(times)));
    return indices;
}

} // namespace plot3d::program
