#include "describe/Table.h"

#include <algorithm>
#include <array>
#include <map>
#include <ostream>
#include <string_view>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include "describe/TextGrid.h"
#include "describe/VariableSummary.h"
#include "describe/Words.h"

namespace quorvia::host {
namespace {

using Align_e = TextGrid::Align_e;

void printLeftOut(std::ostream& out, std::size_t total, std::size_t shown, std::string_view what) {
    if (total > shown)
        out << fmt::format("  ... and {} more {}; --json FILE lists every one\n", total - shown,
                           what);
}

// ---- Data set -----------------------------------------------------------------------------------

void printHead(std::ostream& out, const Outcome_s& outcome) {
    if (!outcome.dataSet) {
        out << "No data set\n";
        return;
    }
    const DataSetOutcome_s& dataSet = *outcome.dataSet;
    out << fmt::format("Data set \"{}\": {}, plot type {}\n", onOneLine(dataSet.title),
                       sizeText(dataSet), wordOf(outcome.plotType));
}

// ---- Variables ----------------------------------------------------------------------------------

std::string typeWords(const std::vector<QuorFieldDataType_e>& types) {
    std::vector<std::string_view> words;
    for (const QuorFieldDataType_e type : types)
        words.emplace_back(wordOf(type));
    return fmt::format("{}", fmt::join(words, ", "));
}

void printVariables(std::ostream& out, const DataSetOutcome_s& dataSet) {
    TextGrid grid({{"#", Align_e::Right},
                   {"name", Align_e::Left},
                   {"type", Align_e::Left},
                   {"minimum", Align_e::Right},
                   {"maximum", Align_e::Right}});
    for (std::size_t index = 0; index < dataSet.variables.size(); ++index) {
        const auto number = static_cast<std::int32_t>(index) + 1;
        const VariableSummary_s summary = summariseVariable(dataSet, number);
        grid.addRow({fmt::format("{}", number), dataSet.variables[index], typeWords(summary.types),
                     summary.hasRange() ? fmt::format("{:.7g}", summary.min) : "-",
                     summary.hasRange() ? fmt::format("{:.7g}", summary.max) : "-"});
    }
    out << "\nVariables\n";
    grid.print(out);
}

// ---- Zones --------------------------------------------------------------------------------------

std::string fieldStates(const ZoneOutcome_s& zone) {
    const std::array<std::string_view, 4> words = {wordOf(FieldState_e::Deferred),
                                                   wordOf(FieldState_e::Stored), sharedWord,
                                                   wordOf(FieldState_e::Empty)};
    std::vector<std::string> parts;
    for (const std::string_view word : words) {
        const auto isSo = [word](const FieldOutcome_s& field) {
            return stateWordOf(field) == word;
        };
        const auto count = std::count_if(zone.fields.begin(), zone.fields.end(), isSo);
        if (count > 0)
            parts.push_back(fmt::format("{} {}", count, word));
    }
    return fmt::format("{}", fmt::join(parts, ", "));
}

std::string numberOrDash(std::int32_t number) {
    return number == 0 ? "-" : fmt::format("{}", number);
}

void printZones(std::ostream& out, const DataSetOutcome_s& dataSet, TableLimits_s limits) {
    TextGrid grid({{"#", Align_e::Right},
                   {"name", Align_e::Left},
                   {"type", Align_e::Left},
                   {"size", Align_e::Left},
                   {"strand", Align_e::Right},
                   {"time", Align_e::Right},
                   {"parent", Align_e::Right},
                   {"fields", Align_e::Left}});
    const std::size_t shown = std::min(dataSet.zones.size(), limits.lines);
    for (std::size_t index = 0; index < shown; ++index) {
        const ZoneOutcome_s& zone = dataSet.zones[index];
        grid.addRow({fmt::format("{}", zone.number), zone.name, wordOf(zone.type), sizeText(zone),
                     numberOrDash(zone.strandId), fmt::format("{:.7g}", zone.solutionTime),
                     numberOrDash(zone.parentZone), fieldStates(zone)});
    }
    out << "\nZones\n";
    grid.print(out);
    printLeftOut(out, dataSet.zones.size(), shown, "zones");
}

// ---- Auxiliary data -----------------------------------------------------------------------------

/// "1-3, 7": zone numbers in ascending order.
std::string numberRanges(const std::vector<std::int32_t>& numbers) {
    std::vector<std::string> parts;
    for (std::size_t first = 0; first < numbers.size();) {
        std::size_t last = first;
        while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1)
            ++last;
        parts.push_back(first == last ? fmt::format("{}", numbers[first])
                                      : fmt::format("{}-{}", numbers[first], numbers[last]));
        first = last + 1;
    }
    return fmt::format("{}", fmt::join(parts, ", "));
}

void printItems(std::ostream& out, const AuxDataItems& items) {
    std::size_t widest = 0;
    for (const auto& [name, text] : items)
        widest = std::max(widest, name.size());
    for (const auto& [name, text] : items)
        out << fmt::format("    {:<{}}  {}\n", onOneLine(name), widest, onOneLine(text));
}

struct AuxDataGroup_s {
    const AuxDataItems* items;
    std::vector<std::int32_t> zones; // numbers, ascending
};

/// Most zones of a time step carry the same items; zones that agree stand together.
std::vector<AuxDataGroup_s> groupByAuxData(const DataSetOutcome_s& dataSet) {
    const auto isLess = [](const AuxDataItems* left, const AuxDataItems* right) {
        return *left < *right;
    };
    std::map<const AuxDataItems*, std::size_t, decltype(isLess)> placeOf(isLess);
    std::vector<AuxDataGroup_s> groups;
    for (const ZoneOutcome_s& zone : dataSet.zones) {
        const AuxDataItems& items = zone.auxData.items();
        if (items.empty())
            continue;
        const auto [place, isNew] = placeOf.try_emplace(&items, groups.size());
        if (isNew)
            groups.push_back({&items, {}});
        groups[place->second].zones.push_back(zone.number);
    }
    return groups;
}

void printAuxData(std::ostream& out, const DataSetOutcome_s& dataSet, TableLimits_s limits) {
    const std::vector<AuxDataGroup_s> groups = groupByAuxData(dataSet);
    if (groups.empty() && dataSet.auxData.empty())
        return;
    out << "\nAuxiliary data\n";
    if (!dataSet.auxData.empty()) {
        out << "  data set\n";
        printItems(out, dataSet.auxData);
    }
    std::size_t shown = 0;
    for (std::size_t lines = 0; shown < groups.size() && lines < limits.lines; ++shown) {
        const AuxDataGroup_s& group = groups[shown];
        out << fmt::format("  {} {}\n", group.zones.size() == 1 ? "zone" : "zones",
                           numberRanges(group.zones));
        printItems(out, *group.items);
        lines += 1 + group.items->size();
    }
    printLeftOut(out, groups.size(), shown, "groups of zones");
}

// ---- What went wrong, what was said -------------------------------------------------------------

void printFailedFields(std::ostream& out, const DataSetOutcome_s& dataSet, TableLimits_s limits) {
    std::size_t total = 0;
    for (const ZoneOutcome_s& zone : dataSet.zones) {
        for (const FieldOutcome_s& field : zone.fields) {
            if (!field.error)
                continue;
            if (total == 0)
                out << "\nValues that could not be fetched\n";
            if (total < limits.lines)
                out << fmt::format("  zone {}, variable {}: {}\n", zone.number, field.variable,
                                   onOneLine(*field.error));
            ++total;
        }
    }
    printLeftOut(out, total, std::min(total, limits.lines), "fields");
}

std::string indented(std::string_view text) {
    std::string result;
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        result += fmt::format("    {}\n", onOneLine(text.substr(start, end - start)));
        start = end + 1;
    }
    return result;
}

void printMessages(std::ostream& out, const std::vector<Message_s>& messages) {
    if (messages.empty())
        return;
    out << "\nMessages\n";
    for (const Message_s& message : messages) {
        out << fmt::format("  {}:\n{}", wordOf(message.kind), indented(message.text));
        if (message.answer)
            out << fmt::format("    answered: {}\n",
                               *message.answer ? "OK or Yes" : "Cancel or No");
    }
}

void printViolations(std::ostream& out, const std::vector<std::string>& violations) {
    if (violations.empty())
        return;
    out << fmt::format("\n*** {} of the host's contract by the add-on ***\n",
                       counted(violations.size(), "VIOLATION", "VIOLATIONS"));
    for (const std::string& violation : violations)
        out << fmt::format("*** {}\n", onOneLine(violation));
}

} // namespace

void printTable(const Outcome_s& outcome, std::ostream& out, TableLimits_s limits) {
    printHead(out, outcome);
    if (outcome.dataSet) {
        printVariables(out, *outcome.dataSet);
        printZones(out, *outcome.dataSet, limits);
        printAuxData(out, *outcome.dataSet, limits);
        printFailedFields(out, *outcome.dataSet, limits);
    }
    printMessages(out, outcome.messages);
    printViolations(out, outcome.violations);
}

} // namespace quorvia::host
