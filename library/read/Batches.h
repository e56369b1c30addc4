// Cuts the runs of a box into batches, each of which is got from the field at one go.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "read/BoxStrides.h"

namespace plot3dlib {

/// In values, as BoxStrides_s counts them.
struct BatchLimits_s {
    std::int64_t span; // places that a batch may go over, at least 1
    std::int64_t gap;  // places between two runs of one batch; below 0: each run for itself
};

/// A batch holds the innermost directions whole, and a group of the next one.
struct BatchPlan_s {
    std::size_t wholeDirections = 0;
    std::int64_t group = 1;
};

BatchPlan_s planBatches(const BoxStrides_s& strides, const BatchLimits_s& limits);

/// Calls `use(batch)` for one BoxStrides_s after the other: together they are the values of
/// `strides`, in their order.
template <typename Use>
void forEachBatch(const BoxStrides_s& strides, const BatchLimits_s& limits, Use use) {
    const BatchPlan_s plan = planBatches(strides, limits);
    const auto direction = [&](std::size_t n) {
        return n < strides.directionCount ? strides.directions[n] : BoxStrides_s::Direction_s{};
    };
    const BoxStrides_s::Direction_s grouped = direction(plan.wholeDirections);
    const BoxStrides_s::Direction_s middle = direction(plan.wholeDirections + 1);
    const BoxStrides_s::Direction_s outer = direction(plan.wholeDirections + 2);

    BoxStrides_s batch;
    std::copy_n(strides.directions.begin(), plan.wholeDirections, batch.directions.begin());
    const auto useGroup = [&](std::int64_t first, std::int64_t count) {
        batch.directionCount = plan.wholeDirections;
        if (plan.group > 1)
            batch.directions[batch.directionCount++] = {count, grouped.stride};
        for (std::int64_t done = 0; done < strides.run; done += limits.span) {
            batch.first = first + done;
            batch.run = std::min(strides.run - done, limits.span);
            use(batch);
        }
    };
    for (std::int64_t o = 0; o < outer.count; ++o)
        for (std::int64_t m = 0; m < middle.count; ++m)
            for (std::int64_t g = 0; g < grouped.count; g += plan.group)
                useGroup(strides.first + o * outer.stride + m * middle.stride + g * grouped.stride,
                         std::min(plan.group, grouped.count - g));
}

} // namespace plot3dlib
