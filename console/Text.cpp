#include "console/Text.h"

#include <algorithm>

namespace console {
namespace {

bool startsCodePoint(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The place of the code point with that number, counted from 0; the text's end behind the last.
std::size_t placeOf(std::size_t number, std::string_view text) {
    std::size_t seen = 0;
    for (std::size_t place = 0; place < text.size(); ++place)
        if (startsCodePoint(text[place]) && seen++ == number)
            return place;
    return text.size();
}

std::vector<std::string_view> wordsOf(std::string_view text) {
    std::vector<std::string_view> words;
    for (std::size_t start = text.find_first_not_of(' '); start != std::string_view::npos;) {
        const std::size_t end = std::min(text.find(' ', start), text.size());
        words.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(' ', end);
    }
    return words;
}

} // namespace

std::string onOneLine(std::string_view text) {
    const auto isControl = [](char byte) {
        const auto code = static_cast<unsigned char>(byte);
        return code < 0x20U || code == 0x7FU;
    };
    std::string result(text);
    std::replace(result.begin(), result.end(), '\t', ' ');
    std::replace_if(result.begin(), result.end(), isControl, '?');
    return result;
}

std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), startsCodePoint));
}

std::string cutToWidth(std::string_view text, std::size_t width) {
    return std::string(text.substr(0, placeOf(width, text)));
}

std::string shortened(std::string_view text, std::size_t width) {
    const std::size_t whole = widthOf(text);
    if (whole <= width)
        return std::string(text);
    if (width < 3)
        return cutToWidth(text, width);
    const std::size_t head = (width - 1) / 2;
    const std::size_t tail = width - 1 - head;
    return cutToWidth(text, head) + "…" + std::string(text.substr(placeOf(whole - tail, text)));
}

std::vector<std::string> wrapped(std::string_view text, std::size_t width) {
    if (width == 0 || widthOf(text) <= width)
        return {std::string(text)};
    std::vector<std::string> lines(1);
    for (const std::string_view word : wordsOf(text)) {
        std::string& line = lines.back();
        if (line.empty())
            line = word;
        else if (widthOf(line) + 1 + widthOf(word) <= width)
            line.append(" ").append(word);
        else
            lines.emplace_back(word);
    }
    return lines;
}

std::string wrappedBehind(std::size_t indent, std::string_view text, std::size_t width) {
    const std::size_t room = width > indent ? width - indent : width;
    std::string result;
    for (const std::string& line : wrapped(text, room))
        result += (result.empty() ? "" : "\n") + std::string(indent, ' ') + line;
    return result;
}

} // namespace console
