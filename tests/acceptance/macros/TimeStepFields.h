// What every field of a time step should hold, whichever of its files it comes from.
#pragma once

#include <cstdint>
#include <optional>

#include "acceptance/macros/FieldOfFile.h"
#include "acceptance/macros/MacroSession.h"

namespace quorvia::testsupport {

/// The variables of a time step in their order: coordinates, I-blank, solution, functions. Values
/// are those of SmallFiles, which wrote the files.
struct TimeStepFields_s {
    std::size_t firstZone = 1; // from 1
    FieldForm_e gridForm = FieldForm_e::Single;
    bool hasIBlank = false;
    FieldForm_e solutionForm = FieldForm_e::Single;
    std::optional<double> solutionShift = {}; // none: no solution
    std::int32_t functionCount = 0;           // variables
    double functionShift = 0;
};

/// Expects each field of the zones of `files.grids`, and that there are no others.
void expectTimeStep(const Json& outcome, const SmallFiles& files, const TimeStepFields_s& step);

} // namespace quorvia::testsupport
