#include "content/WholeRange.h"

#include <algorithm>
#include <cmath>
#include <set>

#include <plot3d/FieldReader.h>

#include "analysis/fields/BlockSplit.h"
#include "analysis/fields/IBlank.h"

namespace plot3d::scene {

namespace {

constexpr std::int64_t pointsPerPiece = std::int64_t{1} << 19;

} // namespace

void widen(std::optional<Range_s>& range, double value) {
    if (!std::isfinite(value))
        return;
    if (!range)
        range = Range_s{value, value};
    range->least = std::min(range->least, value);
    range->most = std::max(range->most, value);
}

void widen(std::optional<Range_s>& range, const std::optional<Range_s>& other) {
    if (!other)
        return;
    widen(range, other->least);
    widen(range, other->most);
}

void WholeRange::addReads(Pieces& pieces, const std::vector<std::size_t>& zones) {
    std::set<std::size_t> seen;
    for (const std::size_t zone : zones) {
        std::string reason;
        if (quantity_.derived != nullptr
                ? !canDerive(data_, zone, *quantity_.derived, reason)
                : data_.kind(zone, *quantity_.variable) == FieldKind::Empty)
            continue;
        const std::size_t holder =
            quantity_.variable ? data_.holder(zone, *quantity_.variable) : zone;
        if (!seen.insert(holder).second)
            continue;
        for (const Box& box :
             analysis::blocksOf(Box::whole(data_.zones()[zone].size), pointsPerPiece))
            pieces.push_back(
                [this, zone, box](const std::stop_token& stop) { take(zone, box, stop); });
    }
}

void WholeRange::take(std::size_t zone, const Box& box, const std::stop_token& stop) {
    std::vector<double> values(static_cast<std::size_t>(box.count()));
    if (quantity_.derived != nullptr)
        values = lengthsOf(derive(data_, zone, *quantity_.derived, box, gas_, stop));
    else
        data_.reader(zone, *quantity_.variable).readAsDouble(box, values.data(), stop);
    std::vector<double> blank;
    const std::optional<std::size_t> iBlank = analysis::iBlankVariable(data_);
    if (skipsBlanked_ && iBlank && data_.kind(zone, *iBlank) != FieldKind::Empty) {
        blank.resize(values.size());
        data_.reader(zone, *iBlank).readAsDouble(box, blank.data(), stop);
    }
    std::optional<Range_s> range;
    for (std::size_t point = 0; point < values.size(); ++point)
        if (blank.empty() || blank[point] != 0)
            widen(range, values[point]);
    const std::lock_guard held(lock_);
    widen(range_, range);
}

} // namespace plot3d::scene
