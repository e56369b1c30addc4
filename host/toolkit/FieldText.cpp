#include "toolkit/FieldText.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace quorvia::host {

namespace {

constexpr std::int64_t largestMember = 2147483647;

bool isBlank(char letter) {
    return std::isspace(static_cast<unsigned char>(letter)) != 0;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

bool isLast(std::string_view text) {
    constexpr std::string_view last = "last";
    return std::equal(text.begin(), text.end(), last.begin(), last.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) == b;
    });
}

/// What is left of a set's text.
class SetReader {
public:
    explicit SetReader(std::string_view text) : rest_(text) { skipBlanks(); }

    bool atEnd() const { return rest_.empty(); }
    bool consume(char letter) {
        if (rest_.empty() || rest_.front() != letter)
            return false;
        rest_.remove_prefix(1);
        skipBlanks();
        return true;
    }
    std::optional<std::int64_t> number() {
        std::int64_t value = 0;
        const auto [end, error] = std::from_chars(rest_.data(), rest_.data() + rest_.size(), value);
        if (error != std::errc() || value < 1 || value > largestMember)
            return std::nullopt;
        rest_.remove_prefix(static_cast<std::size_t>(end - rest_.data()));
        skipBlanks();
        return value;
    }

private:
    void skipBlanks() {
        while (!rest_.empty() && isBlank(rest_.front()))
            rest_.remove_prefix(1);
    }
    std::string_view rest_;
};

struct Range_s {
    std::int64_t first = 1;
    std::int64_t last = 1;
    std::int64_t step = 1;
};

std::optional<Range_s> readRange(SetReader& reader) {
    const std::optional<std::int64_t> first = reader.number();
    if (!first)
        return std::nullopt;
    Range_s range{*first, *first, 1};
    if (!reader.consume('-'))
        return range;
    const std::optional<std::int64_t> last = reader.number();
    if (!last || *last < *first)
        return std::nullopt;
    range.last = *last;
    if (reader.consume(':')) {
        const std::optional<std::int64_t> step = reader.number();
        if (!step)
            return std::nullopt;
        range.step = *step;
    }
    return range;
}

} // namespace

std::string indexText(std::int64_t value, bool zeroIsLast) {
    return value == 0 && zeroIsLast ? "Last" : std::to_string(value);
}

std::optional<std::int64_t> readIndex(std::string_view text, bool zeroIsLast) {
    const std::string_view word = trimmed(text);
    if (zeroIsLast && (word.empty() || isLast(word)))
        return 0;
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size())
        return std::nullopt;
    return value;
}

std::string setText(const std::set<std::int64_t>& members) {
    std::string text;
    for (auto member = members.begin(); member != members.end();) {
        const std::int64_t first = *member;
        std::int64_t last = first;
        while (++member != members.end() && *member == last + 1)
            last = *member;
        text += (text.empty() ? "" : ",") + std::to_string(first);
        if (last > first)
            text += '-' + std::to_string(last);
    }
    return text;
}

std::optional<std::set<std::int64_t>> readSet(std::string_view text, std::string& why) {
    std::set<std::int64_t> members;
    SetReader reader(text);
    std::int64_t count = 0;
    while (!reader.atEnd()) {
        const std::optional<Range_s> range = readRange(reader);
        if (!range) {
            why = "is not a set of whole numbers from 1, such as 1-5,7,12";
            return std::nullopt;
        }
        count += (range->last - range->first) / range->step + 1;
        if (count > largestSetInField) {
            why = "names more than " + std::to_string(largestSetInField) + " numbers";
            return std::nullopt;
        }
        for (std::int64_t member = range->first; member <= range->last; member += range->step)
            members.insert(members.end(), member);
        reader.consume(',');
    }
    return members;
}

} // namespace quorvia::host
