#include "describe/Statistics.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>

#include <zlib.h>

namespace quorvia::host {
namespace {

static_assert(std::endian::native == std::endian::little,
              "the checksums are taken over memory as it stands");

template <typename Value>
std::uint32_t crc32OfBytes(std::span<const Value> values) {
    const auto bytes = std::as_bytes(values);
    const auto* first = reinterpret_cast<const Bytef*>(bytes.data());
    return static_cast<std::uint32_t>(crc32_z(crc32_z(0, nullptr, 0), first, bytes.size()));
}

/// Adds halves to halves, so that the rounding error grows with the logarithm of the count only.
template <typename Value>
double pairwiseSum(std::span<const Value> values) {
    constexpr std::size_t kPlainlyAdded = 128;
    if (values.size() <= kPlainlyAdded) {
        double sum = 0;
        for (const Value value : values)
            sum += static_cast<double>(value);
        return sum;
    }
    const std::size_t half = values.size() / 2;
    return pairwiseSum(values.first(half)) + pairwiseSum(values.subspan(half));
}

template <typename Value>
FieldStatistics_s describeTyped(std::span<const Value> values) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    FieldStatistics_s result;
    result.min = kInfinity;
    result.max = -kInfinity;
    for (const Value value : values) { // no comparison with a NaN is true, so NaNs are passed over
        const auto number = static_cast<double>(value);
        result.min = number < result.min ? number : result.min;
        result.max = number > result.max ? number : result.max;
    }
    if (result.min > result.max)
        result.min = result.max = std::nan("");
    result.mean = pairwiseSum(values) / static_cast<double>(values.size());
    result.crc32 = crc32OfBytes(values);
    return result;
}

} // namespace

FieldStatistics_s describeValues(QuorFieldDataType_e type, const void* values, std::int64_t count) {
    const auto size = static_cast<std::size_t>(count);
    switch (type) {
    case QuorFieldDataType_Float:
        return describeTyped(std::span(static_cast<const float*>(values), size));
    case QuorFieldDataType_Double:
        return describeTyped(std::span(static_cast<const double*>(values), size));
    case QuorFieldDataType_Int32:
        return describeTyped(std::span(static_cast<const std::int32_t*>(values), size));
    case QuorFieldDataType_Invalid:
        break;
    }
    return describeTyped(std::span<const double>());
}

std::uint32_t crc32OfIntegers(std::span<const std::int32_t> values) {
    return crc32OfBytes(values);
}

} // namespace quorvia::host
