// Which fields statistics are made of: each that is selected once, however many zones share it, cut
// into pieces for several cores.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include <plot3d/Box.h>
#include <plot3d/Field.h>

#include "analysis/fields/Fields.h"
#include "analysis/fields/SelectedZone.h"

namespace plot3d::analysis {

/// Zones and variables by index from 0.
struct StatsSelection_s {
    std::vector<std::size_t> variables;
    std::vector<SelectedZone_s> zones;
    /// The variable of I-blank, if points where it is 0 are left out of all others.
    std::optional<std::size_t> leavesOutBy;
};

struct PlannedField_s {
    std::size_t zone = 0; // the first of those that share it
    std::size_t variable = 0;
    ValueType type = ValueType::Float32;
    std::optional<std::size_t> iBlank; // the variable that says which of its points count
    Box box;
    std::vector<Box> stretches; // the box in parts that one core works on, in order
};

/// One stretch of one field, both by index from 0.
struct Piece_s {
    std::size_t field = 0;
    std::size_t stretch = 0;
};

struct FieldPlan_s {
    std::vector<PlannedField_s> fields;
    /// For each selected variable, for each selected zone its field; nothing if it is empty.
    std::vector<std::vector<std::optional<std::size_t>>> fieldOf;
    /// What one core does in one go: pieces that are read along with the same I-blank, or one.
    std::vector<std::vector<Piece_s>> tasks;
};

FieldPlan_s planOf(const Fields& fields, const StatsSelection_s& selection);

} // namespace plot3d::analysis
