#include "services/FileNameTimes.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace quorvia::host {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool isLetter(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

std::size_t skipDigits(std::string_view text, std::size_t position) {
    while (position < text.size() && isDigit(text[position]))
        ++position;
    return position;
}

bool isAllDigits(std::string_view text) {
    return !text.empty() && skipDigits(text, 0) == text.size();
}

// The end of a fraction or exponent that begins at `position` with `digitsFrom` characters before
// its digits; `position` itself if there is none.
std::size_t skipWithDigits(std::string_view text, std::size_t position, std::size_t digitsFrom) {
    const std::size_t digits = position + digitsFrom;
    const std::size_t end = digits < text.size() ? skipDigits(text, digits) : digits;
    return end > digits ? end : position;
}

std::size_t endOfNumber(std::string_view text, std::size_t begin) {
    const std::size_t whole = skipDigits(text, begin);
    if (whole >= text.size() || text[whole] != '.')
        return whole;
    const std::size_t fraction = skipWithDigits(text, whole, 1);
    if (fraction == whole || fraction >= text.size() ||
        (text[fraction] != 'e' && text[fraction] != 'E'))
        return fraction;
    const bool hasSign =
        fraction + 1 < text.size() && (text[fraction + 1] == '-' || text[fraction + 1] == '+');
    return skipWithDigits(text, fraction, hasSign ? 2 : 1);
}

/// As in t1.5e-3, whose end is no extension.
bool isInsideNumber(std::string_view name, std::size_t point) {
    std::size_t begin = point;
    while (begin > 0 && isDigit(name[begin - 1]))
        --begin;
    return begin < point && endOfNumber(name, begin) == name.size();
}

// What of the path may hold the time.
std::string_view searchedPart(std::string_view path) {
    const auto isSeparator = [](char letter) { return letter == '/' || letter == '\\'; };
    const auto start = std::find_if(path.rbegin(), path.rend(), isSeparator);
    const std::string_view name = path.substr(static_cast<std::size_t>(path.rend() - start));
    const std::size_t point = name.rfind('.');
    if (point == std::string_view::npos || isAllDigits(name.substr(point + 1)) ||
        isInsideNumber(name, point))
        return name;
    return name.substr(0, point);
}

bool hasMinus(std::string_view text, std::size_t begin) {
    if (begin == 0 || text[begin - 1] != '-')
        return false;
    return begin == 1 || !(isLetter(text[begin - 2]) || isDigit(text[begin - 2]));
}

} // namespace

std::optional<double> timeFromFileName(std::string_view path) {
    const std::string_view text = searchedPart(path);
    std::optional<double> time;
    for (std::size_t position = 0; position < text.size();) {
        if (!isDigit(text[position])) {
            ++position;
            continue;
        }
        const std::size_t end = endOfNumber(text, position);
        double value = 0.0;
        const auto read = std::from_chars(text.data() + position, text.data() + end, value);
        if (read.ec == std::errc())
            time = hasMinus(text, position) ? -value : value;
        position = end;
    }
    return time;
}

} // namespace quorvia::host
