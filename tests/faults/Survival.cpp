#include "faults/Survival.h"

#include <algorithm>
#include <sstream>

#include <fmt/core.h>

#include "describe/Json.h"

namespace quorvia::testsupport {

namespace {

using host::DataSetOutcome_s;
using host::FieldOutcome_s;
using host::ZoneOutcome_s;

std::string asText(const Standing_s& standing) {
    host::Outcome_s outcome;
    outcome.dataSet = standing.dataSet;
    outcome.plotType = static_cast<QuorPlotType_e>(standing.plotType);
    outcome.instructions = standing.instructions;
    return host::toJson(outcome);
}

/// Whether a zone was left as it was, but for fields of variables that were added behind its own.
bool isKept(const ZoneOutcome_s& before, ZoneOutcome_s now) {
    if (now.fields.size() < before.fields.size())
        return false;
    now.fields.resize(before.fields.size());
    return now == before;
}

bool beginsWith(const Texts& all, const Texts& first) {
    return all.size() >= first.size() && std::equal(first.begin(), first.end(), all.begin());
}

std::string lostFromBefore(const DataSetOutcome_s& before, const DataSetOutcome_s& now) {
    if (now.zones.size() != before.zones.size())
        return fmt::format("{} zones became {}", before.zones.size(), now.zones.size());
    for (std::size_t place = 0; place < now.zones.size(); ++place)
        if (!isKept(before.zones[place], now.zones[place]))
            return fmt::format("zone {} is another", place + 1);
    return beginsWith(now.variables, before.variables) ? "" : "variables have other names";
}

bool holdsSameValues(const FieldOutcome_s& left, const FieldOutcome_s& right) {
    return left.type == right.type && left.count == right.count &&
           left.statistics == right.statistics && left.error == right.error;
}

/// Zones of the first time step, whose fields are the old ones or the new.
std::string lostByReplacing(const DataSetOutcome_s& before, const DataSetOutcome_s& expected,
                            const DataSetOutcome_s& now) {
    if (now.zones.size() > before.zones.size() || now.zones.empty())
        return fmt::format("{} zones became {}", before.zones.size(), now.zones.size());
    for (std::size_t zone = 0; zone < now.zones.size(); ++zone)
        for (std::size_t field = 0; field < now.zones[zone].fields.size(); ++field) {
            const FieldOutcome_s& found = now.zones[zone].fields[field];
            if (!holdsSameValues(found, before.zones[zone].fields[field]) &&
                !holdsSameValues(found, expected.zones[zone].fields[field]))
                return fmt::format("zone {}, variable {} is neither old nor new", zone + 1,
                                   field + 1);
        }
    return now.variables == before.variables ? "" : "variables have other names";
}

/// The zones of the grids are whole; boundary zones are missing, or values of theirs.
bool isWithoutBoundaries(const DataSetOutcome_s& found, const DataSetOutcome_s& expected,
                         std::size_t gridZones) {
    if (found.zones.size() < gridZones || found.zones.size() > expected.zones.size())
        return false;
    for (std::size_t zone = 0; zone < found.zones.size(); ++zone) {
        if (zone < gridZones && !(found.zones[zone] == expected.zones[zone]))
            return false;
        for (std::size_t field = 0; field < found.zones[zone].fields.size(); ++field)
            if (found.zones[zone].fields[field].statistics &&
                !holdsSameValues(found.zones[zone].fields[field],
                                 expected.zones[zone].fields[field]))
                return false;
    }
    return found.variables == expected.variables;
}

std::optional<DataSetOutcome_s> withoutAuxData(std::optional<DataSetOutcome_s> dataSet) {
    if (!dataSet)
        return dataSet;
    dataSet->auxData.clear();
    for (ZoneOutcome_s& zone : dataSet->zones)
        zone.auxData = {};
    return dataSet;
}

} // namespace

std::string difference(const Standing_s& expected, const Standing_s& found) {
    std::istringstream expectedText(asText(expected));
    std::istringstream foundText(asText(found));
    std::string text;
    int count = 0;
    std::string left;
    std::string right;
    while (count < 4) {
        const bool hasLeft = static_cast<bool>(std::getline(expectedText, left));
        const bool hasRight = static_cast<bool>(std::getline(foundText, right));
        if (!hasLeft && !hasRight)
            break;
        if (hasLeft != hasRight || left != right) {
            ++count;
            text += fmt::format("\n    expected {}\n    found    {}", hasLeft ? left : "an end",
                                hasRight ? right : "an end");
        }
    }
    return text;
}

bool isWithoutSideFile(const Session_s& session, const Standing_s& found,
                       const Standing_s& expected) {
    if (!found.dataSet || session.sideFile == SideFile_e::None)
        return false;
    if (found.plotType != expected.plotType)
        return false;
    if (session.sideFile == SideFile_e::Boundaries)
        return isWithoutBoundaries(*found.dataSet, *expected.dataSet,
                                   session.zonesWithoutBoundaries);
    DataSetOutcome_s wanted = *expected.dataSet;
    wanted.variables = found.dataSet->variables;
    return *found.dataSet == wanted;
}

bool isWithoutWhatHostRefused(const Standing_s& found, const Standing_s& expected) {
    auto place = expected.instructions.begin();
    for (const std::string& instruction : found.instructions) {
        place = std::find(place, expected.instructions.end(), instruction);
        if (place == expected.instructions.end())
            return false;
        ++place;
    }
    return found.plotType == expected.plotType &&
           withoutAuxData(found.dataSet) == withoutAuxData(expected.dataSet);
}

std::string lostByRefusal(Survival_e survival, const Standing_s& before, const Standing_s& expected,
                          const Standing_s& now) {
    if (now.dataSet == before.dataSet || now.dataSet == expected.dataSet)
        return {};
    if (survival == Survival_e::BeforeOrNothing)
        return now.dataSet ? "left part of a data set" + difference(before, now) : "";
    if (!now.dataSet)
        return "lost the data set";
    const std::string lost = survival == Survival_e::SomeReplaced
                                 ? lostByReplacing(*before.dataSet, *expected.dataSet, *now.dataSet)
                                 : lostFromBefore(*before.dataSet, *now.dataSet);
    return lost.empty() ? lost : lost + difference(before, now);
}

} // namespace quorvia::testsupport
