#include "selection/TimeRange.h"

#include <algorithm>
#include <cmath>
#include <compare>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include <plot3d/Error.h>

#include "selection/NumberList.h"

namespace plot3d::program {
namespace {

constexpr std::size_t timesToldAtMost = 10;

/// What is no number is a time like others, behind or ahead of them all.
bool isUpTo(double one, double other) {
    return std::strong_order(one, other) <= 0 || isSameTime(one, other, timeTolerance);
}

struct Times_s {
    double first;
    double last;

    bool has(double time) const { return isUpTo(first, time) && isUpTo(time, last); }
};

double timeIn(std::string_view part, std::string_view whole, const std::vector<double>& times) {
    if (const auto time = realNumber(part))
        return *time;
    const auto shown = std::find_if(times.begin(), times.end(), [part](double time) {
        return !std::isfinite(time) && fmt::format("{}", time) == part;
    });
    if (shown == times.end())
        throw Error(ErrorKind::Usage,
                    fmt::format("\"{}\" is no time, no range of times such as 0.5:2, and neither "
                                "first nor last",
                                whole));
    return *shown;
}

Times_s timesOf(std::string_view text, const std::vector<double>& times) {
    const double earliest = times.empty() ? 0.0 : times.front();
    const double latest = times.empty() ? 0.0 : times.back();
    if (text == "first")
        return {earliest, earliest};
    if (text == "last")
        return {latest, latest};
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        const double time = timeIn(text, text, times);
        return {time, time};
    }
    const std::string_view first = text.substr(0, colon);
    const std::string_view last = text.substr(colon + 1);
    return {first.empty() ? earliest : timeIn(first, text, times),
            last.empty() ? latest : timeIn(last, text, times)};
}

std::string list(const std::vector<double>& times) {
    const std::size_t told = std::min(times.size(), timesToldAtMost);
    const auto end = times.begin() + static_cast<std::ptrdiff_t>(told);
    return fmt::format("{}{}", fmt::join(times.begin(), end, ", "),
                       told < times.size() ? fmt::format(" ... {}", times.back()) : "");
}

} // namespace

bool isSameTime(double one, double other, const TimeTolerance_s& tolerance) {
    if (!std::isfinite(one) || !std::isfinite(other))
        return one == other || (std::isnan(one) && std::isnan(other));
    const double distance = std::abs(one - other);
    return distance <= tolerance.absolute ||
           distance <= tolerance.relative * std::max(std::abs(one), std::abs(other));
}

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
