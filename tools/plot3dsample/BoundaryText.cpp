#include "plot3dsample/BoundaryText.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include <fmt/format.h>

namespace quorvia::plot3dsample {

namespace {

/// Each name once, in the order of the boundaries.
std::vector<std::string_view> namesOf(const std::vector<SampleBoundary_s>& boundaries) {
    std::vector<std::string_view> names;
    for (const SampleBoundary_s& boundary : boundaries)
        if (std::find(names.begin(), names.end(), boundary.name) == names.end())
            names.push_back(boundary.name);
    return names;
}

} // namespace

SampleFile_s boundaryFile(std::string_view stem, const std::vector<SampleBoundary_s>& boundaries) {
    const std::vector<std::string_view> names = namesOf(boundaries);
    std::string text = "FVBND 1 4\n";
    for (const std::string_view name : names)
        text += fmt::format("{}\n", name);
    text += "BOUNDARIES\n";
    for (const SampleBoundary_s& boundary : boundaries) {
        const auto place = std::find(names.begin(), names.end(), boundary.name) - names.begin();
        text += fmt::format("{} {} {} F 0\n", place + 1, boundary.gridNumber, boundary.ranges);
    }
    return {fmt::format("{}.x.fvbnd", stem), {}, text};
}

} // namespace quorvia::plot3dsample
