// Fetching some of the fields of a data set, for their ranges.
#pragma once

#include <cstdint>
#include <vector>

#include "describe/GatherOutcome.h"

namespace quorvia::host {

/// Numbers from 1.
struct FieldAddress_s {
    std::int32_t zone = 0;
    std::int32_t variable = 0;

    friend bool operator==(const FieldAddress_s&, const FieldAddress_s&) = default;
};

/// How a fetch ended.
enum class FetchEnd_e { Done, Stopped, Failed };

/// Fetches those of `fields` that have values and were not fetched before, and adds statistics to
/// them in `dataSet`, which must be as describeOutcome() told it of the data set that is there. A
/// field held by several zones is fetched once, and told of all of them. The first that fails ends
/// the fetching: the guest has told the user why, and would tell it again for each of a thousand.
/// On the guest's thread; `observer` as for fetchValues().
FetchEnd_e fetchFields(ReferenceHost& host, DataSetOutcome_s& dataSet,
                       const std::vector<FieldAddress_s>& fields, const FetchObserver& observer);

/// As before any fetch.
DataSetOutcome_s withoutValues(DataSetOutcome_s dataSet);

/// Null if there is no such field.
FieldOutcome_s* findField(DataSetOutcome_s& dataSet, FieldAddress_s address);
const FieldOutcome_s* findField(const DataSetOutcome_s& dataSet, FieldAddress_s address);

} // namespace quorvia::host
