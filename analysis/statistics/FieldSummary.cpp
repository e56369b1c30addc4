#include "analysis/statistics/FieldSummary.h"

#include <zlib.h>

namespace plot3d::analysis {
namespace {

// I-blank has a handful of values; what was taken for I-blank and isn't may have any number.
constexpr std::size_t valuesOfTable = 4096;

} // namespace

void Checksum_s::add(const Checksum_s& later) {
    crc32 = static_cast<std::uint32_t>(crc32_combine(crc32, later.crc32, later.byteCount));
    byteCount += later.byteCount;
}

void FieldSummary_s::add(const FieldSummary_s& later) {
    const bool isFirst = moments.count == 0;
    if (later.moments.count > 0 && (isFirst || later.min < min)) {
        min = later.min;
        minAt = later.minAt;
    }
    if (later.moments.count > 0 && (isFirst || later.max > max)) {
        max = later.max;
        maxAt = later.maxAt;
    }
    moments.add(later.moments);
    nan += later.nan;
    infinite += later.infinite;
    blanked += later.blanked;
    checksum.add(later.checksum);
    for (const auto& [value, count] : later.table)
        addToTable(value, count);
    beyondTable += later.beyondTable;
}

void FieldSummary_s::addToTable(std::int32_t value, std::int64_t count) {
    const auto found = table.find(value);
    if (found != table.end())
        found->second += count;
    else if (table.size() < valuesOfTable)
        table.emplace(value, count);
    else
        beyondTable += count;
}

} // namespace plot3d::analysis
