#include "support/TextPattern.h"

#include <regex>

namespace quorvia::testsupport {

class TextPattern::Expression : public std::regex {
public:
    using std::regex::regex;
};

namespace {

Match textsOf(const std::smatch& found) {
    return Match(found.begin(), found.end());
}

} // namespace

TextPattern::TextPattern(const std::string& expression)
    : expression_(std::make_shared<const Expression>(expression)) {}

Match TextPattern::matchOfWhole(const std::string& text) const {
    std::smatch found;
    return std::regex_match(text, found, *expression_) ? textsOf(found) : Match();
}

Match TextPattern::firstMatch(const std::string& text) const {
    std::smatch found;
    return std::regex_search(text, found, *expression_) ? textsOf(found) : Match();
}

std::vector<Match> TextPattern::allMatches(const std::string& text) const {
    std::vector<Match> matches;
    for (std::sregex_iterator found(text.begin(), text.end(), *expression_), end; found != end;
         ++found)
        matches.push_back(textsOf(*found));
    return matches;
}

std::string TextPattern::replaced(const std::string& text, const std::string& replacement) const {
    return std::regex_replace(text, *expression_, replacement);
}

} // namespace quorvia::testsupport
