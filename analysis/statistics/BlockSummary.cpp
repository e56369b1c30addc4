#include "analysis/statistics/BlockSummary.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <type_traits>

#include <zlib.h>

#include "analysis/statistics/ValueRun.h"

namespace plot3d::analysis {
namespace {

static_assert(std::endian::native == std::endian::little,
              "checksums are taken over memory as it stands");

using IBlank = std::span<const std::int32_t>;

bool isFinite(std::int32_t) {
    return true;
}
template <typename Real>
bool isFinite(Real value) {
    return std::isfinite(value);
}

bool isNan(std::int32_t) {
    return false;
}
template <typename Real>
bool isNan(Real value) {
    return std::isnan(value);
}

/// Puts runs of the block together, and finds the places of its extremes in the end.
template <typename Value>
class BlockSummary {
public:
    BlockSummary(std::span<const Value> values, IBlank iBlank) : values_(values), iBlank_(iBlank) {}

    void takeAll() {
        for (std::size_t start = 0; start < values_.size(); start += valuesOfRun<Value>)
            takeRun(start, std::min(valuesOfRun<Value>, values_.size() - start));
    }

    /// Extremes that are none beside what stands ahead of the block get no place.
    FieldSummary_s summary(const BlockPlace_s& place, const FieldSummary_s& ahead) {
        if (summary_.moments.count == 0)
            return summary_;
        const bool isFirst = ahead.moments.count == 0;
        summary_.min = static_cast<double>(min_.value);
        summary_.max = static_cast<double>(max_.value);
        if (isFirst || summary_.min < ahead.min)
            summary_.min = placed(min_, summary_.minAt, place);
        if (isFirst || summary_.max > ahead.max)
            summary_.max = placed(max_, summary_.maxAt, place);
        return summary_;
    }

private:
    struct Extreme_s {
        Value value = 0;
        std::size_t run = 0; // start of the first run with this value
    };

    void takeRun(std::size_t start, std::size_t count) {
        const std::span<const Value> run = values_.subspan(start, count);
        ValueRun_s<Value> found;
        if (!hasBlanked(start, count) && goOver(run, found)) {
            take(found, start);
            return;
        }
        const std::span<const Value> counting = countingOf(start, count);
        if (counting.empty())
            return;
        if (!goOver(counting, found))
            found = goOverSlowly(counting);
        take(found, start);
    }

    bool hasBlanked(std::size_t start, std::size_t count) const {
        if (iBlank_.empty())
            return false;
        const IBlank part = iBlank_.subspan(start, count);
        return std::count(part.begin(), part.end(), 0) > 0;
    }

    bool isBlanked(std::size_t index) const { return !iBlank_.empty() && iBlank_[index] == 0; }

    /// The values that count, closed up; counts those that don't.
    std::span<const Value> countingOf(std::size_t start, std::size_t count) {
        std::size_t kept = 0;
        for (std::size_t index = start; index < start + count; ++index) {
            const Value value = values_[index];
            if (isBlanked(index))
                ++summary_.blanked;
            else if (isFinite(value))
                counting_[kept++] = value;
            else
                ++(isNan(value) ? summary_.nan : summary_.infinite);
        }
        return {counting_.data(), kept};
    }

    void take(const ValueRun_s<Value>& run, std::size_t start) {
        const bool isFirst = summary_.moments.count == 0;
        if (isFirst || run.min < min_.value)
            min_ = {run.min, start};
        if (isFirst || run.max > max_.value)
            max_ = {run.max, start};
        summary_.moments.add(run.moments);
    }

    /// The extreme as it stands at its first place.
    double placed(const Extreme_s& extreme, Place_s& at, const BlockPlace_s& place) const {
        std::size_t index = extreme.run;
        while (isBlanked(index) || values_[index] != extreme.value)
            ++index;
        at = {place.zone, pointAt(place.box, static_cast<std::int64_t>(index))};
        return static_cast<double>(values_[index]);
    }

    std::span<const Value> values_;
    IBlank iBlank_;
    FieldSummary_s summary_;
    Extreme_s min_;
    Extreme_s max_;
    std::array<Value, valuesOfRun<Value>> counting_;
};

Checksum_s checksumOf(std::span<const std::byte> bytes) {
    const auto* const start = reinterpret_cast<const Bytef*>(bytes.data());
    return {static_cast<std::uint32_t>(crc32_z(0, start, bytes.size())),
            static_cast<std::int64_t>(bytes.size())};
}

/// Counts neighbours of one value at once.
void fillTable(std::span<const std::int32_t> values, FieldSummary_s& summary) {
    for (std::size_t start = 0; start < values.size();) {
        std::size_t end = start + 1;
        while (end < values.size() && values[end] == values[start])
            ++end;
        summary.addToTable(values[start], static_cast<std::int64_t>(end - start));
        start = end;
    }
}

} // namespace

template <typename Value>
void addBlock(std::span<const Value> values, IBlank iBlank, const BlockPlace_s& place,
              Checksum_e checksum, FieldSummary_s& summary) {
    BlockSummary<Value> block(values, iBlank);
    block.takeAll();
    FieldSummary_s added = block.summary(place, summary);
    if (checksum == Checksum_e::Yes)
        added.checksum = checksumOf(std::as_bytes(values));
    if constexpr (std::is_same_v<Value, std::int32_t>)
        fillTable(values, added);
    summary.add(added);
}

template void addBlock(std::span<const float>, IBlank, const BlockPlace_s&, Checksum_e,
                       FieldSummary_s&);
template void addBlock(std::span<const double>, IBlank, const BlockPlace_s&, Checksum_e,
                       FieldSummary_s&);
template void addBlock(std::span<const std::int32_t>, IBlank, const BlockPlace_s&, Checksum_e,
                       FieldSummary_s&);

} // namespace plot3d::analysis
