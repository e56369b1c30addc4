// The one word for each kind of thing, the same in JSON and in tables.
#pragma once

#include "describe/Outcome.h"

namespace quorvia::host {

/// Static texts, valid for ever; "unknown" for a number that is none of the enumeration's.
const char* wordOf(MessageKind kind);
const char* wordOf(FieldState state);
const char* wordOf(QuorFieldDataType_e type);
const char* wordOf(QuorZoneType_e type);
const char* wordOf(QuorPlotType_e type);

/// Of a field that another zone holds too.
inline constexpr const char* sharedWord = "shared";
/// `sharedWord`, or the word of its state.
const char* stateWordOf(const FieldOutcome_s& field);

} // namespace quorvia::host
