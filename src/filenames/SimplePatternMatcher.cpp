#include "filenames/SimplePatternMatcher.h"

#include <algorithm>
#include <cctype>
#include <utility>

namespace quorvia::quorutildataio {

namespace {

using Matchers = SimplePatternMatcher;

std::unique_ptr<Matchers::MatcherInterface> makeMatcher(const std::string& pattern) {
    const bool openStart = pattern.starts_with('*');
    const bool openEnd = pattern.ends_with('*');
    if (openStart && openEnd && pattern.size() > 1)
        return std::make_unique<Matchers::Matcher<Contains>>(pattern.substr(1, pattern.size() - 2));
    if (openStart)
        return std::make_unique<Matchers::Matcher<EndsWith>>(pattern.substr(1));
    if (openEnd)
        return std::make_unique<Matchers::Matcher<StartsWith>>(
            pattern.substr(0, pattern.size() - 1));
    return nullptr;
}

std::string inLowerCase(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(),
                   [](unsigned char byte) { return static_cast<char>(std::tolower(byte)); });
    return text;
}

} // namespace

SimplePatternMatcher::SimplePatternMatcher(const std::vector<std::string>& patterns) {
    for (const std::string& pattern : patterns)
        if (auto matcher = makeMatcher(pattern))
            matchers_.push_back(std::move(matcher));
}

SimplePatternMatcher::~SimplePatternMatcher() = default;

bool SimplePatternMatcher::matches(const std::string& text) const {
    const std::string lowered = inLowerCase(text);
    return std::any_of(matchers_.begin(), matchers_.end(),
                       [&lowered](const auto& matcher) { return matcher->matches(lowered); });
}

} // namespace quorvia::quorutildataio
