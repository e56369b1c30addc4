// What every pass over the planned fields stands on.
#pragma once

#include <vector>

#include "analysis/fields/ParallelWork.h"
#include "analysis/statistics/FieldPlan.h"
#include "analysis/statistics/PieceReader.h"

namespace plot3d::analysis {

struct Pass_s {
    const FieldPlan_s& plan;
    std::vector<PieceReader>& readers; // one for each worker
    WorkWatch_s watch;

    int threads() const { return static_cast<int>(readers.size()); }
};

} // namespace plot3d::analysis
