#include "open/TimeSteps.h"

#include <algorithm>
#include <compare>
#include <cstddef>

namespace plot3dlib {

namespace {

/// What is no number is a time like others, behind or ahead of them all.
bool isEarlier(double left, double right) {
    return std::strong_order(left + 0.0, right + 0.0) < 0; // so that -0 is 0
}

bool isSameTime(double left, double right) {
    return !isEarlier(left, right) && !isEarlier(right, left);
}

std::vector<double> timesOf(const std::vector<plot3d::Zone>& zones) {
    std::vector<double> times;
    for (const plot3d::Zone& zone : zones)
        if (zone.strand != 0 && (times.empty() || !isSameTime(times.back(), zone.time)))
            times.push_back(zone.time);
    std::sort(times.begin(), times.end(), isEarlier);
    times.erase(std::unique(times.begin(), times.end(), isSameTime), times.end());
    if (times.empty() && !zones.empty())
        times.push_back(zones.front().time);
    return times;
}

} // namespace

std::vector<plot3d::TimeStep> timeStepsOf(const std::vector<plot3d::Zone>& zones) {
    std::vector<plot3d::TimeStep> steps;
    for (const double time : timesOf(zones))
        steps.push_back({time, {}});
    for (std::size_t zone = 0; zone < zones.size(); ++zone) {
        if (zones[zone].strand == 0) {
            for (plot3d::TimeStep& step : steps)
                step.zones.push_back(zone);
            continue;
        }
        const auto step = std::lower_bound(
            steps.begin(), steps.end(), zones[zone].time,
            [](const plot3d::TimeStep& left, double time) { return isEarlier(left.time, time); });
        step->zones.push_back(zone);
    }
    return steps;
}

} // namespace plot3dlib
