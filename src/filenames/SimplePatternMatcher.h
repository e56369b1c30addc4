// Whether a file name matches any of a few simple patterns: "*.in.*" is contained, "*.g" ends and
// "g.*" begins the name. A star elsewhere is an ordinary character, and there is no "?".
#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace quorvia::quorutildataio {

// The comparisons, byte by byte. Each takes the text and the pattern without its stars.
class StartsWith {
public:
    bool operator()(const std::string& text, const std::string& pattern) const {
        return text.starts_with(pattern);
    }
};
class EndsWith {
public:
    bool operator()(const std::string& text, const std::string& pattern) const {
        return text.ends_with(pattern);
    }
};
class Contains {
public:
    bool operator()(const std::string& text, const std::string& pattern) const {
        return text.find(pattern) != std::string::npos;
    }
};

class SimplePatternMatcher {
public:
    class MatcherInterface {
    public:
        virtual bool matches(const std::string& text) const = 0;
        virtual ~MatcherInterface() = default;
    };

    /// Applies one comparison to a text and the pattern that it stores.
    template <typename Comparison>
    class Matcher : public MatcherInterface {
    public:
        explicit Matcher(std::string pattern) : pattern_(std::move(pattern)) {}
        bool matches(const std::string& text) const override {
            return Comparison()(text, pattern_);
        }

    private:
        std::string pattern_;
    };

    /// The patterns have to be in lower case. One without a star at either end matches nothing.
    explicit SimplePatternMatcher(const std::vector<std::string>& patterns);
    virtual ~SimplePatternMatcher();
    SimplePatternMatcher(const SimplePatternMatcher&) = delete;
    SimplePatternMatcher& operator=(const SimplePatternMatcher&) = delete;

    /// Whether any pattern matches `text`, whatever the case of its ASCII letters.
    bool matches(const std::string& text) const;

private:
    std::vector<std::unique_ptr<MatcherInterface>> matchers_;
};

} // namespace quorvia::quorutildataio
