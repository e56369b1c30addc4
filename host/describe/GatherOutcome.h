// Takes the outcome of a load from the reference host, as the load left it. Values come with
// ValueFetch.h.
#pragma once

#include <cstdint>

#include "describe/Outcome.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// What the host shows now, without fetching a value. `result` is what the import gave.
Outcome_s describeOutcome(ReferenceHost& host, const LoadResult_s& result);

/// Fields whose values were asked for and could not be had.
std::int64_t unreadFieldCount(const Outcome_s& outcome);

/// Brings messages, violations and lock depth to what the host's log holds now.
void updateLog(ReferenceHost& host, Outcome_s& outcome);

} // namespace quorvia::host
