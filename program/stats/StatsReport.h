// Statistics for people and for programs.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "analysis/statistics/Statistics.h"
#include "manners/Command.h"

namespace plot3d::program {

/// What is told; all borrowed.
struct StatsReport_s {
    const DataSet& data;
    const analysis::StatsSelection_s& selection;
    const analysis::StatsWishes_s& wishes;
    const std::vector<analysis::VariableStatistics_s>& variables;
    bool tellsZones = false; // in tables; JSON always does

    const std::string& nameOf(const analysis::VariableStatistics_s& statistics) const {
        return data.variables()[statistics.variable].name;
    }
};

/// Tables that fit the terminal.
void printTables(const StatsReport_s& report, const Surroundings_s& surroundings);

/// The schema plot3d.stats/1: docs/stats.md tells it.
void writeJson(const StatsReport_s& report, std::ostream& out);

} // namespace plot3d::program
