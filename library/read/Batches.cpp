#include "read/Batches.h"

namespace plot3dlib {

BatchPlan_s planBatches(const BoxStrides_s& strides, const BatchLimits_s& limits) {
    BatchPlan_s plan;
    std::int64_t span = strides.run;
    for (std::size_t n = 0; n < strides.directionCount; ++n) {
        const auto& [count, stride] = strides.directions[n];
        if (span > limits.span || stride - span > limits.gap)
            return plan;
        if ((count - 1) * stride > limits.span - span) {
            plan.group = 1 + (limits.span - span) / stride;
            return plan;
        }
        span += (count - 1) * stride;
        ++plan.wholeDirections;
    }
    return plan;
}

} // namespace plot3dlib
