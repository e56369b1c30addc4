// The one word for each kind of thing, the same in JSON, in tables and in windows, and counts in
// words.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "describe/Outcome.h"

namespace quorvia::host {

/// Static texts, valid for ever; "unknown" for a number that is none of the enumeration's.
const char* wordOf(MessageKind_e kind);
const char* wordOf(FieldState_e state);
const char* wordOf(QuorFieldDataType_e type);
const char* wordOf(QuorZoneType_e type);
const char* wordOf(QuorPlotType_e type);

/// Of a field that another zone holds too.
inline constexpr const char* sharedWord = "shared";
/// `sharedWord`, or the word of its state.
const char* stateWordOf(const FieldOutcome_s& field);

/// "1 zone", "3 zones".
std::string counted(std::size_t count, std::string_view one, std::string_view many);

/// "3 zones, 6 variables"; "no data set" if there is none.
std::string sizeText(const DataSetOutcome_s& dataSet);
std::string sizeText(const std::optional<DataSetOutcome_s>& dataSet);

/// "2 x 3 x 5", or nodes and elements.
std::string sizeText(const ZoneOutcome_s& zone);

} // namespace quorvia::host
