// The statistics of the fields of a data set, read once or a few times block by block on several
// cores. What comes out does not hang on the number of cores, not in the last bit.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <plot3d/Error.h>

#include "analysis/fields/Fields.h"
#include "analysis/fields/ParallelWork.h"
#include "analysis/statistics/BlockSummary.h"
#include "analysis/statistics/FieldPlan.h"
#include "analysis/statistics/FieldSummary.h"

namespace plot3d::analysis {

struct StatsWishes_s {
    Checksum_e checksum = Checksum_e::No;
    std::vector<double> percentiles; // from 0 to 100
    std::size_t bins = 0;            // of the histogram; 0: none
    int threads = 1;
};

struct Statistics_s {
    FieldSummary_s summary;
    std::vector<double> percentiles;     // as wished for; NaN if no value counts
    std::vector<std::int64_t> histogram; // values in each bin; empty if no value counts
};

struct ZoneStatistics_s {
    std::size_t zone = 0; // from 0
    Statistics_s statistics;
    std::optional<Error> error; // why the field can't be read; the statistics are then empty
};

struct VariableStatistics_s {
    std::size_t variable = 0; // from 0
    ValueType type = ValueType::Float32;
    /// Of all zones together, without fields that can't be read. A field that zones share counts
    /// once for each.
    Statistics_s whole;
    std::vector<ZoneStatistics_s> zones; // without those where the variable is empty
};

/// The bins of a histogram, in its zones as well, are those of the whole variable: binEdge() tells.
/// Fields that can't be read are told in the result. Throws plot3d::Error (Interrupted).
std::vector<VariableStatistics_s> statisticsOf(const Fields& fields,
                                               const StatsSelection_s& selection,
                                               const StatsWishes_s& wishes,
                                               const WorkWatch_s& watch = {});

} // namespace plot3d::analysis
