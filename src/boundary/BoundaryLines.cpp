#include "boundary/BoundaryLines.h"

#include <charconv>
#include <cstddef>

namespace quorvia::quorutildataio {

namespace {

constexpr std::size_t longestLine = 255;
constexpr const char* separators = " \t\r\n";

} // namespace

bool readBoundaryTextLine(FileStream& stream, std::string& line) {
    std::string next;
    while (next.size() < longestLine && (next.empty() || next.back() != '\n')) {
        const int character = stream.readCharacter();
        if (character < 0)
            break;
        next.push_back(static_cast<char>(character));
    }
    if (next.empty())
        return false;
    line = next.substr(0, next.find('\0'));
    return true;
}

std::string takeToken(std::string_view& rest) {
    const std::size_t first = rest.find_first_not_of(separators);
    if (first == std::string_view::npos) {
        rest = {};
        return {};
    }
    rest.remove_prefix(first);
    const std::string_view token = rest.substr(0, rest.find_first_of(separators));
    rest.remove_prefix(token.size());
    return std::string(token);
}

std::optional<std::int32_t> leadingInteger(std::string_view token) {
    const bool hasPlus = !token.empty() && token.front() == '+';
    const bool hasTwoSigns = hasPlus && token.substr(1, 1) == "-";
    if (hasPlus)
        token.remove_prefix(1);
    std::int32_t value = 0;
    const auto result = std::from_chars(token.data(), token.data() + token.size(), value);
    if (hasTwoSigns || result.ec != std::errc())
        return std::nullopt;
    return value;
}

} // namespace quorvia::quorutildataio
