// What statistics tell of the values of a field, of a part of one, or of several.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>

#include "analysis/fields/BlockSplit.h"
#include "analysis/statistics/Moments.h"

namespace plot3d::analysis {

struct Place_s {
    std::size_t zone = 0; // from 0
    Point_s point;        // from 0

    bool operator==(const Place_s&) const = default;
};

/// CRC-32 of zlib over values as little-endian bytes of their type.
struct Checksum_s {
    std::uint32_t crc32 = 0;
    std::int64_t byteCount = 0;

    /// As if the bytes of `later` stood behind ours.
    void add(const Checksum_s& later);
    bool operator==(const Checksum_s&) const = default;
};

struct FieldSummary_s {
    /// Of the values that count: those that are finite, at points that are not blanked.
    Moments_s moments;
    double min = std::numeric_limits<double>::quiet_NaN(); // NaN as long as no value counts
    double max = std::numeric_limits<double>::quiet_NaN();
    Place_s minAt; // the first place with this value
    Place_s maxAt;
    std::int64_t nan = 0;
    std::int64_t infinite = 0;
    std::int64_t blanked = 0; // whatever the values there are
    Checksum_s checksum;      // of all values, where it was asked for
    /// Of integers: how often each value comes.
    std::map<std::int32_t, std::int64_t> table;
    std::int64_t beyondTable = 0; // of values that found no more room in it

    /// Adds what was found in values that stand behind ours.
    void add(const FieldSummary_s& later);
    void addToTable(std::int32_t value, std::int64_t count);

    bool operator==(const FieldSummary_s&) const = default;
};

} // namespace plot3d::analysis
