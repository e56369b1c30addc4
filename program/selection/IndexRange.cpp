#include "selection/IndexRange.h"

#include <algorithm>
#include <string>
#include <vector>

#include <fmt/core.h>

#include <plot3d/Error.h>

#include "selection/NumberList.h"

namespace plot3d::program {
namespace {

[[noreturn]] void refuse(std::string_view text, std::string_view why) {
    throw Error(ErrorKind::Usage, fmt::format("\"{}\" {}", text, why));
}

std::int64_t indexIn(std::string_view part, std::string_view whole) {
    const std::optional<std::int64_t> index = wholeNumber(part);
    if (!index || *index == 0)
        refuse(whole, "holds no index: they count from 1, or from the end with -1 for the last");
    return *index;
}

std::int64_t stepIn(std::string_view part, std::string_view whole) {
    const std::optional<std::int64_t> step = wholeNumber(part);
    if (!step || *step < 1)
        refuse(whole, "has no step: it must be 1 or more");
    return *step;
}

bool runsBackwards(const IndexRange_s& range) {
    return (range.first > 0) == (range.last > 0) && range.last < range.first;
}

/// From 0; beyond the ends for an index that the direction does not have.
std::int64_t fromStart(std::int64_t index, std::int64_t count) {
    return index > 0 ? index - 1 : count + index;
}

} // namespace

IndexRange_s parseIndexRange(std::string_view text) {
    const std::vector<std::string_view> parts = partsOf(text, ',');
    if (parts.size() > 3)
        refuse(text, "has more than a first index, a last one and a step");
    IndexRange_s range;
    if (!parts[0].empty() || parts.size() == 1)
        range.first = indexIn(parts[0], text);
    if (parts.size() == 1)
        range.last = range.first;
    if (parts.size() > 1 && !parts[1].empty())
        range.last = indexIn(parts[1], text);
    if (parts.size() > 2 && !parts[2].empty())
        range.step = stepIn(parts[2], text);
    if (runsBackwards(range))
        refuse(text, "ends before it begins");
    return range;
}

std::array<std::int64_t, 3> parsePoint(std::string_view text) {
    const std::vector<std::string_view> parts = partsOf(text, ',');
    if (parts.size() > 3)
        refuse(text, "has more than the three indices of a point");
    std::array<std::int64_t, 3> point = {1, 1, 1};
    for (std::size_t direction = 0; direction < parts.size(); ++direction)
        point[direction] = indexIn(parts[direction], text);
    return point;
}

std::optional<Range> resolved(const IndexRange_s& range, std::int64_t count) {
    std::int64_t first = fromStart(range.first, count);
    if (range.first < 0 && range.first != range.last)
        first = std::max<std::int64_t>(first, 0);
    const std::int64_t last = std::min(fromStart(range.last, count), count - 1);
    if (first < 0 || last < first)
        return std::nullopt;
    const Range found = {first, last, range.step};
    return found.count() == 1 ? Range{first, first, 1} : found;
}

} // namespace plot3d::program
