// The one word for each kind of thing, the same in JSON and in tables.
#pragma once

#include "describe/Outcome.h"

namespace quorvia::host {

/// Static texts, valid for ever; "unknown" for a number that is none of the enumeration's.
const char* wordOf(MessageOutcome_e kind);
const char* wordOf(FieldState_e state);
const char* wordOf(QuorFieldDataType_e type);
const char* wordOf(QuorZoneType_e type);
const char* wordOf(QuorPlotType_e type);

} // namespace quorvia::host
