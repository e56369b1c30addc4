// What all zones together tell of one variable.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "describe/Outcome.h"

namespace quorvia::host {

struct VariableSummary_s {
    /// Over the zones whose values were fetched; min > max if there are none.
    double min = std::numeric_limits<double>::infinity();
    double max = -std::numeric_limits<double>::infinity();
    std::vector<QuorFieldDataType_e> types;                   // each once; of empty fields too
    QuorFieldDataType_e lastType = QuorFieldDataType_Invalid; // of the last that is not empty
    std::size_t fieldCount = 0;                               // zones where the variable has values
    std::size_t fetchedCount = 0; // those of them whose values were fetched

    bool hasRange() const { return min <= max; }
};

/// `variable` from 1.
VariableSummary_s summariseVariable(const DataSetOutcome_s& dataSet, std::int32_t variable);

} // namespace quorvia::host
