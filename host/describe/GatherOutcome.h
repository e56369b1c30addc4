// Takes the outcome of a load from the reference host: first as the load left it, then, if wanted,
// with the values of every field.
#pragma once

#include <cstdint>

#include "describe/FetchSeries.h"
#include "describe/Outcome.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// What the host shows now, without fetching a value. `result` is what the import gave.
Outcome_s describeOutcome(ReferenceHost& host, const LoadResult& result);

/// Fetches every field of the data set that describeOutcome() told and that has values, one after
/// the other, and adds statistics or error to it. A field held by several zones is fetched once.
/// The data set must be unchanged since. What fetching makes the add-on say, or do against its
/// contract, comes with updateLog(). False: `observer` or an interruption ended the fetching, and
/// later fields, and the one that was stopped, tell nothing.
bool fetchValues(ReferenceHost& host, DataSetOutcome_s& dataSet,
                 const FetchObserver& observer = {});

/// Fields whose values were asked for and could not be had.
std::int64_t unreadFieldCount(const Outcome_s& outcome);

/// Brings messages, violations and lock depth to what the host's log holds now.
void updateLog(ReferenceHost& host, Outcome_s& outcome);

} // namespace quorvia::host
