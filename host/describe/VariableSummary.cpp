#include "describe/VariableSummary.h"

#include <algorithm>

#include "describe/ValueFetch.h"

namespace quorvia::host {
namespace {

void add(VariableSummary_s& summary, const FieldOutcome_s& field) {
    auto& types = summary.types;
    if (std::find(types.begin(), types.end(), field.type) == types.end())
        types.push_back(field.type);
    if (field.state == FieldState_e::Empty)
        return;
    summary.lastType = field.type;
    ++summary.fieldCount;
    if (!field.statistics)
        return;
    ++summary.fetchedCount;
    summary.min = std::min(summary.min, field.statistics->min);
    summary.max = std::max(summary.max, field.statistics->max);
}

} // namespace

VariableSummary_s summariseVariable(const DataSetOutcome_s& dataSet, std::int32_t variable) {
    VariableSummary_s summary;
    for (const ZoneOutcome_s& zone : dataSet.zones)
        if (const FieldOutcome_s* field = findField(dataSet, {zone.number, variable}))
            add(summary, *field);
    return summary;
}

} // namespace quorvia::host
