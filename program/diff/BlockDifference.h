// How far the values of two blocks are from one another.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "analysis/fields/BlockSplit.h"

namespace plot3d::program {

/// Up to where two values are the same; one of both is enough.
struct Tolerance_s {
    double absolute = 0;
    double relative = 0; // times the greater of both values, without its sign
};

/// Two values at one point.
struct Pair_s {
    double first = 0;
    double second = 0;
    std::size_t zone = 0;    // from 0
    analysis::Point_s point; // from 0

    bool operator==(const Pair_s&) const = default;
};

struct Difference_s {
    std::int64_t compared = 0;
    std::int64_t different = 0; // beyond the tolerance, with the next
    std::int64_t unlike = 0;    // one is finite and the other is not, or both are different
    double absolute = 0;        // the largest one between finite values
    double relative = 0;        // likewise, of the greater of both
    Pair_s absoluteAt;          // the first place; meaningless where the difference is 0
    Pair_s relativeAt;
    Pair_s unlikeAt; // the first place; meaningless if there is none

    /// Adds what was found behind ours.
    void add(const Difference_s& later);
    bool operator==(const Difference_s&) const = default;
};

/// Values of two types are compared in the one with fewer digits, to which the others are rounded.
/// Both blocks have the points of `box`, I fastest. NaN is like NaN.
template <typename First, typename Second>
Difference_s differenceOf(std::span<const First> first, std::span<const Second> second,
                          const Tolerance_s& tolerance, std::size_t zone, const Box& box);

} // namespace plot3d::program
