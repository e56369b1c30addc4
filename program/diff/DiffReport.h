// Differences for people and for programs.
#pragma once

#include <iosfwd>
#include <vector>

#include "diff/DataSetDifference.h"
#include "manners/Command.h"

namespace plot3d::program {

/// What is told; all borrowed.
struct DiffReport_s {
    const DiffPlan_s& plan;
    const std::vector<FieldDifference_s>& found; // one for each pair of the plan
    const Tolerance_s& tolerance;
    bool hasSeveralZones = false;

    bool isSame() const;
    bool isUnreadable() const;
};

/// Of a variable in all zones; `zones` are the places of its pairs in the plan.
struct VariableDifference_s {
    const SharedVariable_s& variable;
    Difference_s whole;
    std::vector<std::size_t> pairs;
};

std::vector<VariableDifference_s> byVariable(const DiffReport_s& report);

/// Tables that fit the terminal.
void printTables(const DiffReport_s& report, const Surroundings_s& surroundings);

/// The schema plot3d.diff/1: docs/diff.md tells it.
void writeJson(const DiffReport_s& report, std::ostream& out);

} // namespace plot3d::program
