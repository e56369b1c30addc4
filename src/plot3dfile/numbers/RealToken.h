// One token of a text file as a real. The rules are older than any library's: docs/format.md tells
// them, and the process's locale has no say.
#pragma once

#include <array>
#include <cstddef>
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

constexpr bool isDigit(int character) {
    return character >= '0' && character <= '9';
}

constexpr bool isExponentLetter(int character) {
    return character == 'E' || character == 'e' || character == 'D' || character == 'd';
}

/// Whether a real may begin with the character. -1: no.
constexpr bool beginsReal(int character) {
    return isDigit(character) || character == '+' || character == '-' || character == '.';
}

/// Whether the character may stand in a real. -1: no.
constexpr bool belongsToReal(int character) {
    return beginsReal(character) || isExponentLetter(character);
}

/// A token while it is read, every exponent letter as an "E".
class RealTokenText {
public:
    bool isFull() const { return length_ == text_.size(); }
    /// One character that belongs to a real. Not to be called on a full text.
    void append(char character) {
        text_[length_++] = isExponentLetter(character) ? 'E' : character;
    }
    std::string_view view() const { return {text_.data(), length_}; }

private:
    std::array<char, longestRealToken> text_;
    std::size_t length_ = 0;
};

/// The value of such a token, which is not empty. Without point and exponent it is an integer,
/// which wraps at 32 bits. False (not told): it is none; `value` is 0 then.
[[nodiscard]] bool convertRealToken(std::string_view token, double& value);

/// How many more times a value is delivered after the first, if `count` stood ahead of an asterisk:
/// -1 for a count of 0. A real count past 32 bits counts as the largest number there is.
std::int32_t furtherRepeats(std::int32_t count);
std::int32_t furtherRepeats(double count);

} // namespace quorvia::quorutildataio
