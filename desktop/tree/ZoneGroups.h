// The zones of a data set as a person looks for them: by strand, and within a strand by time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "describe/Outcome.h"

namespace quorvia::host {

struct TimeGroup_s {
    double time = 0;
    std::vector<std::size_t> zones; // places in the data set, from 0, ascending
};

struct StrandGroup_s {
    std::int32_t strand = 0;        // 0: zones of no strand, which stand still in time
    std::vector<TimeGroup_s> times; // ascending
};

/// Strands ascending, those of no strand last. Times that are no numbers come last.
std::vector<StrandGroup_s> groupZones(const DataSetOutcome_s& dataSet);

/// Time steps: of the zones that have a strand, each time once.
std::size_t countSteps(const DataSetOutcome_s& dataSet);

} // namespace quorvia::host
