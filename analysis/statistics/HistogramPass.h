// One pass that fills the histograms of fields.
#pragma once

#include <optional>
#include <vector>

#include "analysis/statistics/Histogram.h"
#include "analysis/statistics/Pass.h"

namespace plot3d::analysis {

/// `histograms`: for each planned field an empty one, or nothing if its values are not wanted.
/// Throws plot3d::Error.
void fillHistograms(const Pass_s& pass, std::vector<std::optional<Histogram>>& histograms);

} // namespace plot3d::analysis
