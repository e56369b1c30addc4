// Values in the text of instructions and boundary files: case-insensitive words, integers, sets of
// numbers such as 1-5,7,12. Text is bytes; white space is blank and tab. Nothing is reported here.
#pragma once

#include <cstdint>
#include <limits>
#include <string>

#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

constexpr std::int32_t wholeStrings = std::numeric_limits<std::int32_t>::max();

/// Compares at most `limit` bytes with a to z folded to upper case and no other byte folded.
/// Negative, zero or positive as `a` is below, equal to or above `b`; null is below any string.
int compareNoCase(const char* a, const char* b, std::int32_t limit = wholeStrings);

/// Whether two words are the same, whatever their case.
inline bool isSameWord(const char* a, const char* b) {
    return compareNoCase(a, b) == 0;
}

/// Reads blanks, an optional minus sign and at most ten digits, and moves the cursor behind them.
/// False (not told): no digit, or more than ten; `value` keeps what it held, negated if a sign was
/// read, so it must come in initialised.
[[nodiscard]] bool readSignedInteger(const char*& cursor, std::int64_t& value);

/// Reads items `first`, `first-last` or `first-last:skip`, separated by commas and blanks, into a
/// new host set. An empty text gives an empty set. False (not told): bad text or no memory;
/// `set` is null then. `withBrackets`: the text stands in brackets, and what follows the closing
/// one is not looked at.
[[nodiscard]] bool parseSetText(const char* text, HostSet& set, bool withBrackets);

/// Plain decimal digits, with a minus sign if negative.
std::string integerToText(std::int64_t value);

/// Appends `text` to a host string, which may be null. Null afterwards: no memory.
void appendToHostString(HostString& target, const std::string& text);

/// Appends "-" and the member if it ends a run, "," and the member otherwise.
void appendSetEdge(std::string& text, bool endsRun, std::int64_t member);

} // namespace quorvia::quorutildataio
