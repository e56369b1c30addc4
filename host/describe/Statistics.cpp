#include "describe/Statistics.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <limits>

#include <zlib.h>

namespace quorvia::host {
namespace {

static_assert(std::endian::native == std::endian::little,
              "the checksums are taken over memory as it stands");

constexpr std::size_t valuesOfPiece = std::size_t{1} << 20; // between two questions

/// Thrown out of the work on a field, and caught where it began.
struct Stopped_s {};

class Questions {
public:
    explicit Questions(const std::function<bool()>& mayGoOn) : mayGoOn_(mayGoOn) {}
    /// Throws Stopped_s.
    void ask() const {
        if (mayGoOn_ && !mayGoOn_())
            throw Stopped_s();
    }

private:
    const std::function<bool()>& mayGoOn_;
};

/// Calls `work` on one piece after the other.
template <typename Value, typename Work>
void forEachPiece(std::span<const Value> values, const Questions& questions, Work work) {
    for (std::size_t done = 0; done < values.size(); done += valuesOfPiece) {
        questions.ask();
        work(values.subspan(done, std::min(valuesOfPiece, values.size() - done)));
    }
}

template <typename Value>
std::uint32_t crc32OfBytes(std::span<const Value> values, const Questions& questions) {
    uLong crc32 = crc32_z(0, nullptr, 0);
    forEachPiece(values, questions, [&crc32](std::span<const Value> piece) {
        const auto bytes = std::as_bytes(piece);
        crc32 = crc32_z(crc32, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size());
    });
    return static_cast<std::uint32_t>(crc32);
}

/// Adds halves to halves, so that the rounding error grows with the logarithm of the count only.
template <typename Value>
double pairwiseSum(std::span<const Value> values, const Questions& questions) {
    constexpr std::size_t plainlyAdded = 128;
    if (values.size() <= plainlyAdded) {
        double sum = 0;
        for (const Value value : values)
            sum += static_cast<double>(value);
        return sum;
    }
    if (values.size() > valuesOfPiece)
        questions.ask();
    const std::size_t half = values.size() / 2;
    return pairwiseSum(values.first(half), questions) +
           pairwiseSum(values.subspan(half), questions);
}

template <typename Value>
FieldStatistics_s describeTyped(std::span<const Value> values, const Questions& questions) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    FieldStatistics_s result;
    result.min = infinity;
    result.max = -infinity;
    forEachPiece(values, questions, [&result](std::span<const Value> piece) {
        for (const Value value : piece) { // no comparison with a NaN is true: they are passed over
            const auto number = static_cast<double>(value);
            result.min = number < result.min ? number : result.min;
            result.max = number > result.max ? number : result.max;
        }
    });
    if (result.min > result.max)
        result.min = result.max = std::nan("");
    result.mean = pairwiseSum(values, questions) / static_cast<double>(values.size());
    result.crc32 = crc32OfBytes(values, questions);
    return result;
}

FieldStatistics_s describeOfType(QuorFieldDataType_e type, const void* values, std::int64_t count,
                                 const Questions& questions) {
    const auto size = static_cast<std::size_t>(count);
    switch (type) {
    case QuorFieldDataType_Float:
        return describeTyped(std::span(static_cast<const float*>(values), size), questions);
    case QuorFieldDataType_Double:
        return describeTyped(std::span(static_cast<const double*>(values), size), questions);
    case QuorFieldDataType_Int32:
        return describeTyped(std::span(static_cast<const std::int32_t*>(values), size), questions);
    case QuorFieldDataType_Invalid:
        break;
    }
    return describeTyped(std::span<const double>(), questions);
}

const std::function<bool()> nobody;

} // namespace

FieldStatistics_s describeValues(QuorFieldDataType_e type, const void* values, std::int64_t count) {
    return describeOfType(type, values, count, Questions(nobody));
}

std::optional<FieldStatistics_s> describeValuesWhile(const std::function<bool()>& mayGoOn,
                                                     QuorFieldDataType_e type, const void* values,
                                                     std::int64_t count) {
    try {
        return describeOfType(type, values, count, Questions(mayGoOn));
    } catch (const Stopped_s&) {
        return std::nullopt;
    }
}

std::uint32_t crc32OfIntegers(std::span<const std::int32_t> values) {
    return crc32OfBytes(values, Questions(nobody));
}

} // namespace quorvia::host
