// Small outcomes to tell: the tests change what each is about.
#pragma once

#include <string>

#include "describe/Outcome.h"

namespace quorvia::host {

inline FieldOutcome_s fetchedField(std::int32_t variable, double min, double max) {
    FieldOutcome_s field;
    field.variable = variable;
    field.type = QuorFieldDataType_Float;
    field.state = FieldState_e::Deferred;
    field.count = 30;
    field.statistics = FieldStatistics_s{min, max, (min + max) / 2, 0x00c0ffee};
    return field;
}

inline ZoneOutcome_s orderedZone(std::int32_t number) {
    ZoneOutcome_s zone;
    zone.number = number;
    zone.name = "Zone " + std::to_string(number);
    zone.i = 2;
    zone.j = 3;
    zone.k = 5;
    zone.fields = {fetchedField(1, -1.5, 2.5), fetchedField(2, 0, 7)};
    return zone;
}

/// A loaded data set of `zoneCount` zones with the variables "X" and "Density".
inline Outcome_s loadedOutcome(std::int32_t zoneCount) {
    Outcome_s outcome;
    outcome.ok = true;
    outcome.plotType = QuorPlotType_3D;
    DataSetOutcome_s& dataSet = outcome.dataSet.emplace();
    dataSet.title = "Cylinder";
    dataSet.variables = {"X", "Density"};
    for (std::int32_t number = 1; number <= zoneCount; ++number)
        dataSet.zones.push_back(orderedZone(number));
    return outcome;
}

} // namespace quorvia::host
