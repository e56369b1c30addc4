// The outcome of a load for programs: JSON under the schema "quorhost.outcome/1", whose names are
// fixed and may only grow.
#pragma once

#include <iosfwd>
#include <string>

#include "describe/Outcome.h"

namespace quorvia::host {

/// Indented JSON text with a line end behind it. Numbers that JSON lacks are the strings "NaN",
/// "Infinity" and "-Infinity"; bytes that are no UTF-8 become U+FFFD. `min`, `max`, `mean` and
/// `crc32` of a field are there only if its values were fetched. The text is written as it is made
/// and takes no memory of its own; whether `out` took all of it, its state tells.
void writeJson(const Outcome_s& outcome, std::ostream& out);

/// {"schema", "descriptions", "final"}: the schema is "quorhost.session/1", each description stands
/// under its name, and every outcome has the form of its own schema.
void writeJson(const SessionOutcome_s& session, std::ostream& out);

/// The same as texts.
std::string toJson(const Outcome_s& outcome);
std::string toJson(const SessionOutcome_s& session);

} // namespace quorvia::host
