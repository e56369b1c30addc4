// What two data sets have in common, and in what they are unlike.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include <plot3d/DataSet.h>

#include "analysis/fields/SelectedZone.h"
#include "diff/FieldComparison.h"

namespace plot3d::program {

/// The first or the second data set has it alone, or in another way.
struct Unlikeness_s {
    std::string what;                // "zones", "size", "kind", "time", "variable", ...
    std::optional<std::size_t> zone; // from 0
    std::string variable;            // empty: it is about none
    std::string first;               // how it is in the first one, in words
    std::string second;
};

/// A variable that both have.
struct SharedVariable_s {
    std::string name; // without blanks at its end
    std::size_t first = 0;
    std::size_t second = 0; // indices from 0
};

/// What is compared of the first data set; the same zones are taken of the second.
struct DiffSelection_s {
    std::vector<std::size_t> variables;
    std::vector<analysis::SelectedZone_s> zones;
    /// Everything is selected, so that what the second has beyond the first counts.
    bool isWhole = true;
};

struct DiffPlan_s {
    std::vector<Unlikeness_s> unlike;
    std::vector<SharedVariable_s> variables;
    std::vector<FieldPair_s> pairs; // those of one variable stand together, in their order
};

/// Zones are held against one another by their numbers, variables by their names.
DiffPlan_s planOf(const DataSet& first, const DataSet& second, const DiffSelection_s& selection,
                  const Tolerance_s& tolerance);

} // namespace plot3d::program
