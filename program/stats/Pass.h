// What every pass over the planned fields stands on.
#pragma once

#include <vector>

#include "blocks/ParallelWork.h"
#include "stats/FieldPlan.h"
#include "stats/PieceReader.h"

namespace plot3d::program {

struct Pass_s {
    const FieldPlan_s& plan;
    std::vector<PieceReader>& readers; // one for each worker
    WorkWatch_s watch;

    int threads() const { return static_cast<int>(readers.size()); }
};

} // namespace plot3d::program
