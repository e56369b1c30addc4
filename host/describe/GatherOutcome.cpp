#include "describe/GatherOutcome.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

#include "describe/Statistics.h"

namespace quorvia::host {
namespace {

// ---- The log ------------------------------------------------------------------------------------

void describeEvents(const HostLog_s& log, Outcome_s& outcome) {
    outcome.progress = log.progress;
    outcome.instructions = log.instructions;
    outcome.stateChanges = log.stateChanges;
    outcome.undo = log.undo;
    outcome.redraws = log.redraws;
    outcome.helpShown = log.helpTargets;
}

// ---- The data set -------------------------------------------------------------------------------

/// For each variable (from 0) and zone (from 0) the lowest zone that holds the same field.
using Holders = std::vector<std::vector<std::int32_t>>;

Holders fieldHoldersOf(const DataSet& dataSet) {
    Holders result;
    for (std::int32_t variable = 1; variable <= dataSet.variableCount(); ++variable)
        result.push_back(dataSet.fieldHolders(variable));
    return result;
}

AuxDataItems describeAuxData(const AuxData& auxData) {
    return AuxDataItems(auxData.begin(), auxData.end());
}

FieldOutcome_s describeField(const Zone_s& zone, std::size_t variable, std::int32_t holder) {
    const Field_s& field = zone.fields[variable];
    FieldOutcome_s result;
    result.variable = static_cast<std::int32_t>(variable) + 1;
    result.type = static_cast<QuorFieldDataType_e>(field.type);
    result.sharedWith = holder == zone.number ? 0 : holder;
    result.state = field.state();
    result.count = zone.valueCount(field.location);
    return result;
}

/// Nothing for a map that has elements and that nobody wrote to.
Sparse<ConnectivityOutcome_s> describeConnectivity(const NodeMap& nodeMap) {
    ConnectivityOutcome_s result;
    result.elements = nodeMap.elementCount();
    result.corners = nodeMap.cornerCount();
    if (result.elements == 0)
        return result;
    if (nodeMap.nodes() == nullptr)
        return {};
    const auto count = static_cast<std::size_t>(result.elements * result.corners);
    result.crc32 = crc32OfIntegers({nodeMap.nodes(), count});
    return result;
}

ZoneOutcome_s describeZone(const DataSet& dataSet, const Zone_s& zone, const Holders& holders) {
    ZoneOutcome_s result;
    result.number = zone.number;
    result.name = zone.name;
    result.type = static_cast<QuorZoneType_e>(zone.type);
    result.i = zone.i;
    result.j = zone.j;
    result.k = zone.k;
    result.strandId = zone.strandId;
    result.solutionTime = zone.solutionTime;
    result.parentZone = zone.parentZoneId == 0 ? 0 : dataSet.zoneNumber(zone.parentZoneId);
    const auto place = static_cast<std::size_t>(zone.number) - 1;
    result.fields.reserve(zone.fields.size());
    for (std::size_t variable = 0; variable < zone.fields.size(); ++variable)
        result.fields.push_back(describeField(zone, variable, holders[variable][place]));
    return result;
}

/// Most zones of a file agree with the one before.
void describeZonesAuxData(const DataSet& dataSet, std::vector<ZoneOutcome_s>& zones) {
    for (std::size_t place = 0; place < zones.size(); ++place) {
        const AuxData& auxData = dataSet.zones()[place]->auxData;
        if (place > 0 && auxData == dataSet.zones()[place - 1]->auxData)
            zones[place].auxData = zones[place - 1].auxData;
        else if (!auxData.empty())
            zones[place].auxData = describeAuxData(auxData);
    }
}

/// Node maps in common are gone over once.
void describeNodeMaps(const DataSet& dataSet, std::vector<ZoneOutcome_s>& zones) {
    const std::vector<std::int32_t> holders = dataSet.nodeMapHolders();
    for (std::size_t place = 0; place < zones.size(); ++place) {
        const Zone_s& zone = *dataSet.zones()[place];
        if (!zone.nodeMap)
            continue;
        const std::int32_t holder = holders[place];
        if (holder == zone.number) {
            zones[place].connectivity = describeConnectivity(*zone.nodeMap);
            continue;
        }
        zones[place].connectivitySharedWith = holder;
        zones[place].connectivity = zones[static_cast<std::size_t>(holder) - 1].connectivity;
    }
}

DataSetOutcome_s describeDataSet(const DataSet& dataSet) {
    DataSetOutcome_s result;
    result.title = dataSet.title;
    result.auxData = describeAuxData(dataSet.auxData);
    for (const Variable_s& variable : dataSet.variables())
        result.variables.push_back(variable.name);
    const Holders holders = fieldHoldersOf(dataSet);
    result.zones.reserve(dataSet.zones().size());
    for (const auto& zone : dataSet.zones())
        result.zones.push_back(describeZone(dataSet, *zone, holders));
    describeZonesAuxData(dataSet, result.zones);
    describeNodeMaps(dataSet, result.zones);
    return result;
}

} // namespace

Outcome_s describeOutcome(ReferenceHost& host, const LoadResult_s& result) {
    Outcome_s outcome;
    outcome.ok = result.ok;
    if (!result.hostError.empty())
        outcome.hostError = result.hostError;
    outcome.plotType = static_cast<QuorPlotType_e>(host.frame().plotType());
    describeEvents(host.log(), outcome);
    if (const DataSet* dataSet = host.frame().dataSet())
        outcome.dataSet = describeDataSet(*dataSet);
    if (const Dialog_s* dialog = host.toolkit().latest())
        outcome.dialog = *dialog;
    updateLog(host, outcome);
    return outcome;
}

std::int64_t unreadFieldCount(const Outcome_s& outcome) {
    std::int64_t count = 0;
    if (!outcome.dataSet)
        return count;
    for (const ZoneOutcome_s& zone : outcome.dataSet->zones)
        count += std::count_if(zone.fields.begin(), zone.fields.end(),
                               [](const auto& field) { return static_cast<bool>(field.error); });
    return count;
}

void updateLog(ReferenceHost& host, Outcome_s& outcome) {
    const HostLog_s& log = host.log();
    outcome.messages = log.messages;
    outcome.violations = log.violations;
    outcome.lockDepth = host.lockDepth();
}

} // namespace quorvia::host
