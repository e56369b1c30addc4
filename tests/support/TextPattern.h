// Regular expressions without their header, which costs the compiler seconds wherever it is used.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace quorvia::testsupport {

/// What fitted a pattern: the text of the whole match, then of each group from 1, empty for one
/// that had no part in it. Nothing stands in it where nothing fitted.
using Match = std::vector<std::string>;

class TextPattern {
public:
    /// The expression in the grammar of ECMAScript. Throws std::regex_error if it is none.
    explicit TextPattern(const std::string& expression);

    /// Of the text from its first to its last character.
    Match matchOfWhole(const std::string& text) const;
    /// Of the first part that fits, and of all of them, one behind the other.
    Match firstMatch(const std::string& text) const;
    std::vector<Match> allMatches(const std::string& text) const;
    /// The text with `replacement` in the place of each part that fits.
    std::string replaced(const std::string& text, const std::string& replacement) const;

    bool fitsWhole(const std::string& text) const { return !matchOfWhole(text).empty(); }
    bool fitsPart(const std::string& text) const { return !firstMatch(text).empty(); }

private:
    class Expression;
    std::shared_ptr<const Expression> expression_;
};

} // namespace quorvia::testsupport
