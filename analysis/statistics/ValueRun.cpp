#include "analysis/statistics/ValueRun.h"

#include <array>
#include <cmath>
#include <cstring>
#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace plot3d::analysis {
namespace {

// Values are taken eight at a time, to eight sums side by side: which value goes to which sum is
// fixed, and so is what comes out, in registers of 16 bytes, which all machines have, as in those
// of 32 bytes, which most have.
constexpr std::size_t lanes = 8;

template <typename Value>
using Register __attribute__((vector_size(16))) = Value;
using Pair = Register<double>;

template <typename Value>
inline constexpr std::size_t valuesOfRegister = 16 / sizeof(Value);
template <typename Value>
inline constexpr std::size_t registers = lanes / valuesOfRegister<Value>;

template <typename Value>
inline Register<Value> registerAt(const Value* values) {
    Register<Value> result;
    std::memcpy(&result, values, sizeof result);
    return result;
}

/// The first or second half of four values as 64-bit reals.
#ifdef __x86_64__ // compilers go through general registers otherwise
inline Pair firstTwo(const Register<std::int32_t>& values) {
    return _mm_cvtepi32_pd(reinterpret_cast<__m128i>(values));
}
inline Pair lastTwo(const Register<std::int32_t>& values) {
    const auto both = reinterpret_cast<__m128i>(values);
    return _mm_cvtepi32_pd(_mm_unpackhi_epi64(both, both));
}
inline Pair firstTwo(const Register<float>& values) {
    return _mm_cvtps_pd(values);
}
inline Pair lastTwo(const Register<float>& values) {
    return _mm_cvtps_pd(_mm_movehl_ps(values, values));
}
#else
template <typename Value>
Pair firstTwo(const Register<Value>& values) {
    return {static_cast<double>(values[0]), static_cast<double>(values[1])};
}
template <typename Value>
Pair lastTwo(const Register<Value>& values) {
    return {static_cast<double>(values[2]), static_cast<double>(values[3])};
}
#endif

/// Calls `take` with the number of each pair of lanes, from 0, and its two values.
template <typename Value, typename Take>
inline void forEachPair(std::size_t part, const Register<Value>& values, Take take) {
    if constexpr (valuesOfRegister<Value> == 2) {
        take(part, values);
    } else {
        take(2 * part, firstTwo(values));
        take(2 * part + 1, lastTwo(values));
    }
}

/// Eight sums.
struct Sums_s {
    Pair pairs[lanes / 2] = {};

    double total() const {
        const Pair both = (pairs[0] + pairs[2]) + (pairs[1] + pairs[3]);
        return both[0] + both[1];
    }
};

/// Extremes side by side, as many as stand in 32 bytes, and sums.
template <typename Value>
struct Lanes_s {
    std::array<Value, 32 / sizeof(Value)> min;
    std::array<Value, 32 / sizeof(Value)> max;
    Sums_s sums;
};

// What follows goes over `count` values, a multiple of eight. Minimum and maximum are those of the
// lanes to begin with. A NaN is neither below nor above, but makes the sum one.

template <typename Value>
void addExtremes(const Value* values, std::size_t count, Lanes_s<Value>& found) {
    Register<Value> min[2];
    Register<Value> max[2];
    std::memcpy(min, found.min.data(), sizeof min);
    std::memcpy(max, found.max.data(), sizeof max);
    Sums_s sums;
    for (std::size_t at = 0; at < count; at += lanes) {
        for (std::size_t part = 0; part < registers<Value>; ++part) {
            const auto next = registerAt(values + at + part * valuesOfRegister<Value>);
            min[part % 2] = next < min[part % 2] ? next : min[part % 2];
            max[part % 2] = next > max[part % 2] ? next : max[part % 2];
            forEachPair<Value>(part, next, [&sums](std::size_t pair, const Pair& two) {
                sums.pairs[pair] += two;
            });
        }
    }
    std::memcpy(found.min.data(), min, sizeof min);
    std::memcpy(found.max.data(), max, sizeof max);
    found.sums = sums;
}

template <typename Value>
void addSquares(const Value* values, std::size_t count, double mean, Sums_s& found) {
    Sums_s sums;
    for (std::size_t at = 0; at < count; at += lanes) {
        for (std::size_t part = 0; part < registers<Value>; ++part) {
            const auto next = registerAt(values + at + part * valuesOfRegister<Value>);
            forEachPair<Value>(part, next, [&sums, mean](std::size_t pair, const Pair& two) {
                const Pair distance = two - mean;
                sums.pairs[pair] += distance * distance;
            });
        }
    }
    found = sums;
}

#ifdef __x86_64__
template <typename Value>
using WideRegister __attribute__((vector_size(32))) = Value;

[[gnu::target("avx2")]] inline __m256d fourAt(const float* values) {
    return _mm256_cvtps_pd(_mm_loadu_ps(values));
}
[[gnu::target("avx2")]] inline __m256d fourAt(const double* values) {
    return _mm256_loadu_pd(values);
}
[[gnu::target("avx2")]] inline __m256d fourAt(const std::int32_t* values) {
    return _mm256_cvtepi32_pd(_mm_loadu_si128(reinterpret_cast<const __m128i*>(values)));
}

template <typename Value>
[[gnu::target("avx2")]] void addExtremesWide(const Value* values, std::size_t count,
                                             Lanes_s<Value>& found) {
    constexpr std::size_t width = 32 / sizeof(Value);
    WideRegister<Value> min;
    WideRegister<Value> max;
    std::memcpy(&min, found.min.data(), sizeof min);
    std::memcpy(&max, found.max.data(), sizeof max);
    __m256d first = _mm256_setzero_pd();
    __m256d second = _mm256_setzero_pd();
    for (std::size_t at = 0; at < count; at += lanes) {
        for (std::size_t part = 0; part < lanes; part += width) {
            WideRegister<Value> next;
            std::memcpy(&next, values + at + part, sizeof next);
            min = next < min ? next : min;
            max = next > max ? next : max;
        }
        first += fourAt(values + at);
        second += fourAt(values + at + 4);
    }
    std::memcpy(found.min.data(), &min, sizeof min);
    std::memcpy(found.max.data(), &max, sizeof max);
    std::memcpy(&found.sums.pairs[0], &first, sizeof first);
    std::memcpy(&found.sums.pairs[2], &second, sizeof second);
}

template <typename Value>
[[gnu::target("avx2")]] void addSquaresWide(const Value* values, std::size_t count, double mean,
                                            Sums_s& found) {
    __m256d first = _mm256_setzero_pd();
    __m256d second = _mm256_setzero_pd();
    for (std::size_t at = 0; at < count; at += lanes) {
        const __m256d firstDistance = fourAt(values + at) - mean;
        const __m256d secondDistance = fourAt(values + at + 4) - mean;
        first += firstDistance * firstDistance;
        second += secondDistance * secondDistance;
    }
    std::memcpy(&found.pairs[0], &first, sizeof first);
    std::memcpy(&found.pairs[2], &second, sizeof second);
}

bool isWide() {
    return __builtin_cpu_supports("avx2") != 0;
}
#else
template <typename Value>
void addExtremesWide(const Value*, std::size_t, Lanes_s<Value>&) {}
template <typename Value>
void addSquaresWide(const Value*, std::size_t, double, Sums_s&) {}

bool isWide() {
    return false;
}
#endif

template <typename Value>
struct Extremes_s {
    Value min;
    Value max;
    double sum;

    void take(Value value) {
        min = value < min ? value : min;
        max = value > max ? value : max;
    }
};

template <typename Value>
Extremes_s<Value> extremesOf(std::span<const Value> values, bool wide) {
    const std::size_t whole = values.size() / lanes * lanes;
    Lanes_s<Value> found;
    found.min.fill(values[0]);
    found.max.fill(values[0]);
    (wide ? addExtremesWide<Value> : addExtremes<Value>)(values.data(), whole, found);
    Extremes_s<Value> result = {values[0], values[0], found.sums.total()};
    for (std::size_t lane = 0; lane < found.min.size(); ++lane) {
        result.take(found.min[lane]);
        result.take(found.max[lane]);
    }
    for (const Value value : values.subspan(whole)) {
        result.take(value);
        result.sum += static_cast<double>(value);
    }
    return result;
}

template <typename Value>
double squaresAround(double mean, std::span<const Value> values, bool wide) {
    const std::size_t whole = values.size() / lanes * lanes;
    Sums_s sums;
    (wide ? addSquaresWide<Value> : addSquares<Value>)(values.data(), whole, mean, sums);
    double result = sums.total();
    for (const Value value : values.subspan(whole)) {
        const double distance = static_cast<double>(value) - mean;
        result += distance * distance;
    }
    return result;
}

} // namespace

template <typename Value>
bool goOver(std::span<const Value> values, ValueRun_s<Value>& run, Registers_e registers) {
    const bool wide = registers == Registers_e::Widest && isWide();
    const Extremes_s<Value> extremes = extremesOf(values, wide);
    const double mean = extremes.sum / static_cast<double>(values.size());
    const double squares = squaresAround(mean, values, wide);
    run.min = extremes.min;
    run.max = extremes.max;
    run.moments = {static_cast<std::int64_t>(values.size()), extremes.sum, squares};
    return std::isfinite(squares);
}

template <typename Value>
ValueRun_s<Value> goOverSlowly(std::span<const Value> values) {
    Extremes_s<Value> extremes = {values[0], values[0], 0};
    Moments_s moments;
    for (const Value value : values) {
        extremes.take(value);
        moments.add({1, static_cast<long double>(value), 0});
    }
    return {extremes.min, extremes.max, moments};
}

template bool goOver(std::span<const float>, ValueRun_s<float>&, Registers_e);
template bool goOver(std::span<const double>, ValueRun_s<double>&, Registers_e);
template bool goOver(std::span<const std::int32_t>, ValueRun_s<std::int32_t>&, Registers_e);

template ValueRun_s<float> goOverSlowly(std::span<const float>);
template ValueRun_s<double> goOverSlowly(std::span<const double>);
template ValueRun_s<std::int32_t> goOverSlowly(std::span<const std::int32_t>);

} // namespace plot3d::analysis
