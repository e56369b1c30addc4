#include "app/macro/MacroJson.h"

#include <algorithm>

#include <fmt/core.h>

#include "app/macro/NearestName.h"

namespace quorvia::host {

bool toBool(const MacroJson& value, const std::string& what) {
    if (!value.is_boolean())
        throw MacroError(what + " must be true or false");
    return value.get<bool>();
}

std::string toText(const MacroJson& value, const std::string& what) {
    if (!value.is_string())
        throw MacroError(what + " must be a text");
    return value.get<std::string>();
}

double toReal(const MacroJson& value, const std::string& what) {
    if (!value.is_number())
        throw MacroError(what + " must be a number");
    return value.get<double>();
}

std::int64_t toInteger(const MacroJson& value, const std::string& what, std::int64_t least,
                       std::int64_t most) {
    constexpr auto highest = std::numeric_limits<std::int64_t>::max();
    const bool isTooLarge = value.is_number_unsigned() &&
                            value.get<std::uint64_t>() > static_cast<std::uint64_t>(highest);
    if (!value.is_number_integer() || isTooLarge || value.get<std::int64_t>() < least ||
        value.get<std::int64_t>() > most)
        throw MacroError(fmt::format("{} must be a whole number from {} to {}", what, least, most));
    return value.get<std::int64_t>();
}

std::int32_t toInt32(const MacroJson& value, const std::string& what, std::int32_t least) {
    return static_cast<std::int32_t>(
        toInteger(value, what, least, std::numeric_limits<std::int32_t>::max()));
}

std::int32_t toWord(const MacroJson& value, const std::string& what,
                    std::initializer_list<MacroWord> words) {
    const std::string text = toText(value, what);
    std::vector<std::string_view> known;
    for (const auto& [word, number] : words) {
        if (word == text)
            return number;
        known.push_back(word);
    }
    throw MacroError(fmt::format("{} can't be \"{}\"; the nearest known word is \"{}\"", what, text,
                                 nearestName(text, known)));
}

std::string inQuotes(std::string_view name) {
    return fmt::format("\"{}\"", name);
}

std::string unknownName(const std::string& kind, std::string_view name,
                        const std::vector<std::string_view>& known) {
    return fmt::format("there is no {} \"{}\"; the nearest known name is \"{}\"", kind, name,
                       nearestName(name, known));
}

ObjectReader::ObjectReader(const MacroJson& value, const std::string& what,
                           const std::vector<std::string_view>& known)
    : value_(value), what_(what) {
    if (!value.is_object())
        throw MacroError(what + " must be an object");
    for (const auto& [key, entry] : value.items())
        if (std::find(known.begin(), known.end(), key) == known.end())
            throw MacroError(what + ": " + unknownName("key", key, known));
}

const MacroJson* ObjectReader::find(std::string_view key) const {
    const auto found = value_.find(std::string(key));
    return found != value_.end() ? &*found : nullptr;
}

const MacroJson& ObjectReader::get(std::string_view key) const {
    const MacroJson* value = find(key);
    if (value == nullptr)
        throw MacroError(fmt::format("{} needs \"{}\"", what_, key));
    return *value;
}

} // namespace quorvia::host
