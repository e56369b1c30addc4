// Names of variables, and function files that become variables of what is there. docs/variables.md
#include <strings.h>

#include <fmt/core.h>

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

/// The next number whose names are free. The last name that could clash is not looked at.
std::int32_t freeOrdinal(std::int32_t ordinal, const std::vector<std::string>& taken) {
    for (;; ++ordinal) {
        bool isTaken = false;
        for (std::size_t k = 1; k < taken.size(); ++k)
            for (const std::string& name : taken)
                isTaken |= strcasecmp(name.c_str(), fmt::format("F{}V{}", ordinal, k).c_str()) == 0;
        if (!isTaken)
            return ordinal;
    }
}

} // namespace

std::vector<std::string> variableNames(const LoadRun_s& load, const ExpectedHost_s& host) {
    const FileSet_s& set = load.sets.front();
    std::vector<std::string> names = {"X", "Y", "Z"};
    names.resize(static_cast<std::size_t>(load.coordinates));
    if (load.hasIBlank)
        names.emplace_back("IBlank");
    if (set.solution != nullptr) {
        std::vector<std::string> solution = {"RHO", "RHO-U", "RHO-V", "RHO-W", "E"};
        if (set.solution->layout == Layout_e::OneD)
            solution = {"V2   ", "V3   ", "V4   "};
        else if (set.solution->layout == Layout_e::TwoD)
            solution = {"RHO", "RHO-U", "RHO-V", "E"};
        names.insert(names.end(), solution.begin(), solution.end());
    }
    std::int32_t ordinal = 1;
    for (const FileModel_s* file : set.functions) {
        if (host.dataSet)
            ordinal = freeOrdinal(ordinal, host.dataSet->variables);
        for (std::int32_t k = 1; k <= file->functionCount; ++k)
            names.push_back(fmt::format("F{}V{}", ordinal, k));
        ++ordinal;
    }
    return names;
}

void addVariable(DataSet_s& dataSet, const std::string& name, std::int32_t type) {
    dataSet.variables.push_back(name);
    for (Zone_s& zone : dataSet.zones)
        zone.fields.push_back({type, nullptr});
}

void appendFunctions(LoadRun_s& load, DataSet_s& dataSet) {
    const FileModel_s& first = *load.sets.front().functions.front();
    const auto needed = static_cast<std::int32_t>(load.sets.size()) * first.gridCount();
    if (needed != dataSet.zoneCount())
        throw Refusal("not one grid for each zone that is there");
    const std::int32_t firstVariable = dataSet.variableCount() + 1;
    const std::int32_t ordinal = freeOrdinal(1, dataSet.variables);
    for (std::int32_t k = 1; k <= first.functionCount; ++k)
        addVariable(dataSet, fmt::format("F{}V{}", ordinal, k),
                    first.isDouble() ? doubleType : singleType);
    std::int32_t zone = 1;
    for (const FileSet_s& set : load.sets) {
        const FileModel_s& file = *set.functions.front();
        const auto named = load.namedTimes.find(&file);
        for (std::int32_t s = 0; s < load.selectedGrids(file); ++s)
            if (named != load.namedTimes.end() && zone + s <= dataSet.zoneCount())
                dataSet.zone(zone + s).time = named->second;
        try {
            setFields(file, load, dataSet, zone, firstVariable);
        } catch (const Refusal& refusal) {
            throw RefusalAmidst(refusal.what());
        }
        zone += file.gridCount();
    }
}

} // namespace quorvia::sessions
