// Exact percentiles of any number of values in bounded memory. Few values are held and sorted. Of
// many, a pass counts how many share their first bits; the next one looks only at those that share
// them with a value that is wanted, until these are few.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace plot3d::analysis {

/// Goes over all values once: calls what it is given with parts of them, each on the worker of that
/// number. Finite values only.
using TakeValues = std::function<void(std::span<const double> values, std::size_t worker)>;
using GoOverValues = std::function<void(const TakeValues&)>;

struct PercentileLimits_s {
    std::int64_t heldValues = std::int64_t{1} << 22; // at once, at most
};

/// `count` values are gone over on `workers` workers at most, which must be the same each time. A
/// percentile between two values lies on the line between them: that of p among n sorted values is
/// at the place (n - 1) p / 100, from 0. `percentiles` lie between 0 and 100; NaN of no values.
std::vector<double> percentilesOf(std::int64_t count, const std::vector<double>& percentiles,
                                  std::size_t workers, const GoOverValues& goOver,
                                  const PercentileLimits_s& limits = {});

} // namespace plot3d::analysis
