// Minimum, maximum and moments of a short run of values, at the speed of the memory that holds it:
// the loop that all statistics stand on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "analysis/statistics/Moments.h"

namespace plot3d::analysis {

/// Values that stay in the fastest cache while they are gone over twice.
template <typename Value>
inline constexpr std::size_t valuesOfRun = 16384 / sizeof(Value);

template <typename Value>
struct ValueRun_s {
    Value min;
    Value max;
    Moments_s moments;
};

/// Which registers are used; the result is the same.
enum class Registers_e : unsigned char { Widest, OfAllMachines };

/// Of one value at least. The result depends on values and order alone, not on the machine. False
/// if a value may be NaN or infinite; `run` is then of no use.
template <typename Value>
bool goOver(std::span<const Value> values, ValueRun_s<Value>& run,
            Registers_e registers = Registers_e::Widest);

extern template bool goOver(std::span<const float>, ValueRun_s<float>&, Registers_e);
extern template bool goOver(std::span<const double>, ValueRun_s<double>&, Registers_e);
extern template bool goOver(std::span<const std::int32_t>, ValueRun_s<std::int32_t>&, Registers_e);

/// The same in long double and one value at a time, for values whose sums or squares overflow
/// 64-bit reals. All must be finite.
template <typename Value>
ValueRun_s<Value> goOverSlowly(std::span<const Value> values);

extern template ValueRun_s<float> goOverSlowly(std::span<const float>);
extern template ValueRun_s<double> goOverSlowly(std::span<const double>);
extern template ValueRun_s<std::int32_t> goOverSlowly(std::span<const std::int32_t>);

} // namespace plot3d::analysis
