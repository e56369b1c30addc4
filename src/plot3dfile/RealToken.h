// One token of a text file as a real. The rules are older than any library's: docs/format.md tells
// them, and the process's locale has no say.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvia::quorutildataio {

/// A longer token is cut here, and the rest of it begins the next one.
constexpr std::int64_t longestRealToken = 40;

/// Whether the character may stand between two tokens: blank, tab, line ends, comma. -1 may not.
constexpr bool isSeparator(int character) {
    return character == ' ' || character == '\n' || character == '\r' || character == '\t' ||
           character == ',';
}

/// Whether a real may begin with the character, and whether it may go on with it. -1: no.
bool beginsReal(int character);
bool belongsToReal(int character);

/// The value of a token of such characters, every exponent letter already an "E". A token without
/// point and exponent is an integer, which wraps at 32 bits. False: it is none; `value` is 0 then.
bool convertRealToken(std::string_view token, double& value);

/// How many more times a value is delivered after the first, if `count` stood ahead of an asterisk:
/// -1 for a count of 0. A real count past 32 bits counts as the largest number there is.
std::int32_t furtherRepeats(std::int32_t count);
std::int32_t furtherRepeats(double count);

} // namespace quorvia::quorutildataio
