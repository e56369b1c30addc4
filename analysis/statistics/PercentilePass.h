// The passes that find percentiles of fields, and of fields of several zones together.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

#include "analysis/statistics/Pass.h"
#include "analysis/statistics/Percentiles.h"

namespace plot3d::analysis {

/// Planned fields whose values are looked at together, and how often each counts.
struct PercentileJob_s {
    std::map<std::size_t, std::int64_t> shares;
    std::int64_t count = 0;    // of values that count
    std::vector<double> found; // what comes out, as percentilesOf() gives it
};

/// Jobs that can be held are done side by side, the others one after the other on all cores. Throws
/// plot3d::Error.
void findPercentiles(const Pass_s& pass, const std::vector<double>& percentiles,
                     std::vector<PercentileJob_s>& jobs, const PercentileLimits_s& limits = {});

} // namespace plot3d::analysis
