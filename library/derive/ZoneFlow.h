// The values of one zone that a formula needs, read from the data set.
#pragma once

#include <cstddef>
#include <list>
#include <stop_token>
#include <vector>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "derive/FlowVariables.h"
#include "flow/FlowQuantities.h"

namespace plot3dlib {

/// Owns the values. The zone has what is needed (whatIsMissing).
class ZoneFlow {
public:
    /// Throws Error.
    ZoneFlow(const plot3d::DataSet& data, std::size_t zone, const FlowNeeds_s& needs,
             const plot3d::Gas& gas, const std::stop_token& stop);

    const Flow_s& flow() const { return flow_; }
    const FlowConstants_s& constants() const { return constants_; }

private:
    std::list<std::vector<double>> values_; // the flow borrows them
    Flow_s flow_;
    FlowConstants_s constants_;
};

} // namespace plot3dlib
