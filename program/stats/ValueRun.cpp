#include "stats/ValueRun.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace plot3d::program {
namespace {

// Values are taken eight at a time, to eight sums side by side, in registers of 16 bytes, which all
// machines have: which value goes to which sum is fixed, and so is what comes out.
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
#ifdef __SSE2__ // compilers go through general registers otherwise
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

/// A NaN is neither below nor above, but makes the sum one.
template <typename Value>
Extremes_s<Value> extremesOf(std::span<const Value> values) {
    Extremes_s<Value> result = {values[0], values[0], 0};
    Register<Value> min[2];
    Register<Value> max[2];
    std::fill(std::begin(min), std::end(min), Register<Value>{} + values[0]);
    std::fill(std::begin(max), std::end(max), Register<Value>{} + values[0]);
    Sums_s sums;
    std::size_t at = 0;
    for (; at + lanes <= values.size(); at += lanes) {
        for (std::size_t part = 0; part < registers<Value>; ++part) {
            const auto next = registerAt(values.data() + at + part * valuesOfRegister<Value>);
            min[part % 2] = next < min[part % 2] ? next : min[part % 2];
            max[part % 2] = next > max[part % 2] ? next : max[part % 2];
            forEachPair<Value>(part, next, [&sums](std::size_t pair, const Pair& two) {
                sums.pairs[pair] += two;
            });
        }
    }
    for (std::size_t lane = 0; lane < valuesOfRegister<Value>; ++lane) {
        result.take(min[0][lane]);
        result.take(min[1][lane]);
        result.take(max[0][lane]);
        result.take(max[1][lane]);
    }
    result.sum = sums.total();
    for (; at < values.size(); ++at) {
        result.take(values[at]);
        result.sum += static_cast<double>(values[at]);
    }
    return result;
}

template <typename Value>
double squaresAround(double mean, std::span<const Value> values) {
    Sums_s sums;
    std::size_t at = 0;
    for (; at + lanes <= values.size(); at += lanes) {
        for (std::size_t part = 0; part < registers<Value>; ++part) {
            const auto next = registerAt(values.data() + at + part * valuesOfRegister<Value>);
            forEachPair<Value>(part, next, [&sums, mean](std::size_t pair, const Pair& two) {
                const Pair distance = two - mean;
                sums.pairs[pair] += distance * distance;
            });
        }
    }
    double result = sums.total();
    for (; at < values.size(); ++at) {
        const double distance = static_cast<double>(values[at]) - mean;
        result += distance * distance;
    }
    return result;
}

} // namespace

template <typename Value>
bool goOver(std::span<const Value> values, ValueRun_s<Value>& run) {
    const Extremes_s<Value> extremes = extremesOf(values);
    const double mean = extremes.sum / static_cast<double>(values.size());
    const double squares = squaresAround(mean, values);
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

template bool goOver(std::span<const float>, ValueRun_s<float>&);
template bool goOver(std::span<const double>, ValueRun_s<double>&);
template bool goOver(std::span<const std::int32_t>, ValueRun_s<std::int32_t>&);

template ValueRun_s<float> goOverSlowly(std::span<const float>);
template ValueRun_s<double> goOverSlowly(std::span<const double>);
template ValueRun_s<std::int32_t> goOverSlowly(std::span<const std::int32_t>);

} // namespace plot3d::program
