// Fetching the values of a data set, all or some, for what is told of them. A field that several
// zones hold is fetched once, at the zone with the lowest number, and told of the others too.
#pragma once

#include <compare>
#include <cstdint>
#include <vector>

#include "describe/FetchSeries.h"
#include "describe/Outcome.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {

/// Numbers from 1.
struct FieldAddress_s {
    std::int32_t zone = 0;
    std::int32_t variable = 0;

    friend auto operator<=>(const FieldAddress_s&, const FieldAddress_s&) = default;
};

/// How a fetch ended.
enum class FetchEnd_e { Done, Stopped, Failed };

// Both fetch, one after the other, fields that have values and were not fetched before, and add
// statistics or error to them in `dataSet`, which must be as describeOutcome() told it of the data
// set that is there. What fetching makes the add-on say, or do against its contract, comes with
// updateLog(). On the guest's thread.

/// Every field; one that fails does not end the fetching. False: `observer` or an interruption
/// ended it, and later fields, and the one that was stopped, tell nothing.
bool fetchValues(ReferenceHost& host, DataSetOutcome_s& dataSet,
                 const FetchObserver& observer = {});

/// Those of `fields`, in their order. The first that fails ends the fetching: the guest has told
/// the user why, and would tell it again for each of a thousand.
FetchEnd_e fetchFields(ReferenceHost& host, DataSetOutcome_s& dataSet,
                       const std::vector<FieldAddress_s>& fields, const FetchObserver& observer);

/// As before any fetch.
DataSetOutcome_s withoutValues(DataSetOutcome_s dataSet);

/// Null if there is no such field.
FieldOutcome_s* findField(DataSetOutcome_s& dataSet, FieldAddress_s address);
const FieldOutcome_s* findField(const DataSetOutcome_s& dataSet, FieldAddress_s address);

/// Every field, zone by zone.
std::vector<FieldAddress_s> fieldsOf(const DataSetOutcome_s& dataSet);

} // namespace quorvia::host
