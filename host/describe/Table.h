// The outcome of a load for people: data set, variables with their ranges, zones, auxiliary data,
// messages, and at the very end what the add-on did against its contract. The form may change from
// one version to the next; programs read toJson().
#pragma once

#include <cstddef>
#include <iosfwd>

#include "describe/Outcome.h"

namespace quorvia::host {

/// From how many lines of one kind (zones, groups of auxiliary data, failed fields) the rest is
/// told as a number only.
struct TableLimits_s {
    std::size_t lines = 40;
};

/// Writes lines of UTF-8 without colour. Control characters in names and texts are shown as `?`,
/// since files from elsewhere must not steer the reader's terminal.
void printTable(const Outcome_s& outcome, std::ostream& out, TableLimits_s limits = {});

} // namespace quorvia::host
