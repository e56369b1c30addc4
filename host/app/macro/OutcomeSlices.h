// The host's log runs through a whole session; each description of the session tells what came
// since the one before.
#pragma once

#include <cstddef>
#include <cstdint>

#include "describe/Outcome.h"

namespace quorvia::host {

class OutcomeSlices {
public:
    /// `outcome` holds all since the session began; its messages, progress, state changes, undo
    /// events and redraws become those since the last cut. The rest stays: instructions and
    /// violations are told of the whole session. The log must not have been emptied in between.
    void cut(Outcome_s& outcome);

private:
    // How much of each was told before.
    std::size_t messages_ = 0;
    std::size_t progress_ = 0;
    std::size_t stateChanges_ = 0;
    std::size_t undo_ = 0;
    std::int64_t redraws_ = 0;
};

} // namespace quorvia::host
