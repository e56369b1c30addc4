#include "analysis/fields/BlockSplit.h"

#include <algorithm>

namespace plot3d::analysis {
namespace {

std::int64_t dividedUp(std::int64_t count, std::int64_t parts) {
    return (count + parts - 1) / parts;
}

/// The range in parts that differ by one index at most.
std::vector<Range> partsOf(const Range& range, std::int64_t indicesOfPart) {
    const std::int64_t count = range.count();
    const std::int64_t parts = dividedUp(count, std::clamp<std::int64_t>(indicesOfPart, 1, count));
    std::vector<Range> result;
    std::int64_t done = 0;
    for (std::int64_t part = 0; part < parts; ++part) {
        const std::int64_t end = count / parts * (part + 1) + std::min(part + 1, count % parts);
        result.push_back(
            {range.first + done * range.step, range.first + (end - 1) * range.step, range.step});
        done = end;
    }
    return result;
}

} // namespace

std::vector<Box> blocksOf(const Box& box, std::int64_t points) {
    std::vector<Box> blocks;
    if (box.count() == 0)
        return blocks;
    const Extent size = box.extent();
    const std::int64_t plane = size.i * size.j;
    for (const Range& k : partsOf(box.k, points / plane))
        for (const Range& j : partsOf(box.j, plane <= points ? size.j : points / size.i))
            for (const Range& i : partsOf(box.i, points))
                blocks.push_back({i, j, k});
    return blocks;
}

Point_s pointAt(const Box& box, std::int64_t place) {
    const Extent size = box.extent();
    const std::int64_t row = place / size.i;
    return {box.i.first + place % size.i * box.i.step, box.j.first + row % size.j * box.j.step,
            box.k.first + row / size.j * box.k.step};
}

} // namespace plot3d::analysis
