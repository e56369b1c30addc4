// Count, sum and squared distance from the mean, of which mean and deviation are made. Those of two
// sets give those of both (Chan, Golub and LeVeque 1979), so that neither large means nor many
// values cost digits.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace plot3d::analysis {

/// Held in long double, whose exponent also has room for the squares of 64-bit reals.
struct Moments_s {
    std::int64_t count = 0;
    long double sum = 0;
    long double squares = 0; // of the distances from the mean

    void add(const Moments_s& other) {
        if (other.count == 0)
            return;
        if (count == 0) {
            *this = other;
            return;
        }
        const auto ours = static_cast<long double>(count);
        const auto theirs = static_cast<long double>(other.count);
        const long double distance = other.sum / theirs - sum / ours;
        squares += other.squares + distance * distance * (ours * theirs / (ours + theirs));
        sum += other.sum;
        count += other.count;
    }

    /// NaN of no values.
    double mean() const {
        return count == 0 ? std::numeric_limits<double>::quiet_NaN()
                          : static_cast<double>(sum / static_cast<long double>(count));
    }
    /// Of the population; NaN of no values.
    double deviation() const {
        return count == 0
                   ? std::numeric_limits<double>::quiet_NaN()
                   : static_cast<double>(std::sqrt(squares / static_cast<long double>(count)));
    }

    bool operator==(const Moments_s&) const = default;
};

} // namespace plot3d::analysis
