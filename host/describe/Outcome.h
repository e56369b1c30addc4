// How a load came out: all that a program or a person may want to know of it, as plain values that
// outlive the host's data set. Made by describeOutcome() (GatherOutcome.h), told as JSON (Json.h)
// or as a table (Table.h).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "describe/Sparse.h"
#include "model/Zone.h"
#include "quorvia/QuorUtil.h"
#include "state/HostLog.h"
#include "toolkit/Dialog.h"

namespace quorvia::host {

/// Of all values of a field, in 64-bit reals.
struct FieldStatistics_s {
    double min = 0;          // of the values that are numbers; NaN if none is
    double max = 0;          // likewise
    double mean = 0;         // of all values, so NaN as soon as one is; NaN if there is none
    std::uint32_t crc32 = 0; // over the values as little-endian bytes of the field's type

    friend bool operator==(const FieldStatistics_s&, const FieldStatistics_s&) = default;
};

struct FieldOutcome_s {
    std::int32_t variable = 0; // from 1
    QuorFieldDataType_e type = QuorFieldDataType_Invalid;
    FieldState_e state = FieldState_e::Empty; // before any value was fetched
    std::int32_t sharedWith = 0;              // the lowest zone with the same field; 0: this one
    std::int64_t count = 0;                   // values, not bytes
    Sparse<FieldStatistics_s> statistics;     // absent if the values were not fetched
    Sparse<std::string> error;                // why a fetch failed

    friend bool operator==(const FieldOutcome_s&, const FieldOutcome_s&) = default;
};

struct ConnectivityOutcome_s {
    std::int64_t elements = 0;
    std::int64_t corners = 0; // of one element
    std::uint32_t crc32 = 0;  // over the node numbers, from 1, as 32-bit little-endian integers

    friend bool operator==(const ConnectivityOutcome_s&, const ConnectivityOutcome_s&) = default;
};

/// Name and text of each item, in the order of the names.
using AuxDataItems = std::vector<std::pair<std::string, std::string>>;

/// Items that zones which agree hold in common.
class SharedAuxData {
public:
    SharedAuxData() = default;
    SharedAuxData(AuxDataItems items)
        : items_(std::make_shared<const AuxDataItems>(std::move(items))) {}
    SharedAuxData(std::initializer_list<AuxDataItems::value_type> items)
        : SharedAuxData(AuxDataItems(items)) {}

    const AuxDataItems& items() const {
        static const AuxDataItems none;
        return items_ ? *items_ : none;
    }
    friend bool operator==(const SharedAuxData& left, const SharedAuxData& right) {
        return left.items_ == right.items_ || left.items() == right.items();
    }

private:
    std::shared_ptr<const AuxDataItems> items_; // null for none
};

struct ZoneOutcome_s {
    std::int32_t number = 0; // from 1
    std::string name;
    QuorZoneType_e type = QuorZoneType_Ordered;
    // As passed when the zone was made: points along I, J, K; or nodes, elements, corners.
    std::int64_t i = 0;
    std::int64_t j = 0;
    std::int64_t k = 0;
    std::int32_t strandId = 0; // 0: none
    double solutionTime = 0;
    std::int32_t parentZone = 0;             // 0: none
    std::int32_t connectivitySharedWith = 0; // the lowest zone with the same node map; 0: none
    SharedAuxData auxData;
    /// Absent in an ordered zone, or if nobody ever wrote to the node map.
    Sparse<ConnectivityOutcome_s> connectivity;
    std::vector<FieldOutcome_s> fields; // one for each variable, in their order

    friend bool operator==(const ZoneOutcome_s&, const ZoneOutcome_s&) = default;
};

struct DataSetOutcome_s {
    std::string title;
    AuxDataItems auxData;
    std::vector<std::string> variables; // names, trailing blanks kept
    std::vector<ZoneOutcome_s> zones;

    friend bool operator==(const DataSetOutcome_s&, const DataSetOutcome_s&) = default;
};

struct Outcome_s {
    bool ok = false;
    std::optional<std::string> hostError; // what stopped the host itself
    std::vector<Message_s> messages;
    TextLog progress; // the texts shown, in order
    QuorPlotType_e plotType = QuorPlotType_None;
    std::vector<std::string> instructions; // last handed over
    std::vector<StateChange_s> stateChanges;
    std::vector<UndoEvent_s> undo;
    std::int64_t redraws = 0;
    std::int64_t lockDepth = 0;
    std::vector<std::string> violations; // of the contract, by the add-on
    std::optional<DataSetOutcome_s> dataSet;
    /// The add-on's dialog, open or as it was left; absent if none was ever launched.
    std::optional<Dialog_s> dialog;
    std::vector<std::string> helpShown; // targets
};

/// How a session of several loads came out.
struct SessionOutcome_s {
    std::vector<std::pair<std::string, Outcome_s>> descriptions; // by different names, in order
    Outcome_s final;                                             // behind its last command
};

} // namespace quorvia::host
