// One zone of a data set and its fields.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/FieldStorage.h"
#include "model/NodeMap.h"

namespace quorvia::host {

/// Auxiliary data by name.
using AuxData = std::map<std::string, std::string>;

enum class FieldState_e { Empty, Deferred, Stored };

/// The field of one variable in one zone.
struct Field_s {
    std::int32_t type = QuorFieldDataType_Float; // QuorFieldDataType_e
    std::int32_t location = QuorValueLocation_Nodal;
    bool passive = false;
    std::shared_ptr<FieldStorage> storage; // null while empty; the same for zones that share it

    /// Of the storage itself; whether it is shared tells DataSet::fieldHolders.
    FieldState_e state() const;
};

struct Zone_s {
    std::int32_t number = 0; // its present number, from 1; kept up to date by the data set
    std::int64_t uniqueId = 0;
    std::string name;
    std::int32_t type = QuorZoneType_Ordered; // QuorZoneType_e
    std::int64_t i = 1, j = 1, k = 1;         // as passed in "IMax", "JMax", "KMax"
    std::int32_t strandId = 0;                // 0 for none
    double solutionTime = 0.0;
    std::int64_t parentZoneId = 0;    // unique id; 0 for none
    std::shared_ptr<NodeMap> nodeMap; // null for an ordered zone; the same for zones that share it
    AuxData auxData;
    std::vector<Field_s> fields; // one for each variable, in their order

    bool isOrdered() const { return type == QuorZoneType_Ordered; }
    /// Number of values of a field at `location` (QuorValueLocation_e).
    std::int64_t valueCount(std::int32_t location) const;
};

} // namespace quorvia::host
