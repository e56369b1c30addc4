// JSON values held against what a macro may have in their place. Everything here throws MacroError
// where a value is refused; only parseMacro() (MacroParser.h) catches it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace quorvia::host {

using MacroJson = nlohmann::json;

/// What is wrong, without the number of the command.
class MacroError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A word of a macro and the number that stands for it.
using MacroWord = std::pair<std::string_view, std::int32_t>;

// ---- Single values; `what` names the value in the error -----------------------------------------

bool toBool(const MacroJson& value, const std::string& what);
std::string toText(const MacroJson& value, const std::string& what);
/// Finite, since JSON has no others.
double toReal(const MacroJson& value, const std::string& what);
/// From `least` to `most`, both included; 2.0 is no integer.
std::int64_t toInteger(const MacroJson& value, const std::string& what, std::int64_t least,
                       std::int64_t most = std::numeric_limits<std::int64_t>::max());
std::int32_t toInt32(const MacroJson& value, const std::string& what, std::int32_t least);
std::int32_t toWord(const MacroJson& value, const std::string& what,
                    std::initializer_list<MacroWord> words);

/// `convert` takes a value and its name. The entries are named with their places from 1.
template <typename Convert>
auto toList(const MacroJson& value, const std::string& what, Convert convert) {
    std::vector<decltype(convert(value, what))> result;
    if (!value.is_array())
        throw MacroError(what + " must be a list");
    for (const MacroJson& entry : value)
        result.push_back(convert(entry, what + ", entry " + std::to_string(result.size() + 1)));
    return result;
}

// ---- Objects ------------------------------------------------------------------------------------

/// `name` in double quotes.
std::string inQuotes(std::string_view name);

/// The error for a `name` of something that is not among `known`; tells the nearest one that is.
std::string unknownName(const std::string& kind, std::string_view name,
                        const std::vector<std::string_view>& known);

class ObjectReader {
public:
    /// Refuses what is no object, and keys that are not among `known`. `value` is borrowed.
    ObjectReader(const MacroJson& value, const std::string& what,
                 const std::vector<std::string_view>& known);

    /// Null if the key is absent.
    const MacroJson* find(std::string_view key) const;
    /// Refuses an absent key.
    const MacroJson& get(std::string_view key) const;

    /// Leaves `target` alone if the key is absent. `convert` takes the value and its name.
    template <typename Target, typename Convert>
    void take(std::string_view key, Target& target, Convert convert) const {
        if (const MacroJson* value = find(key))
            target = convert(*value, inQuotes(key));
    }

private:
    const MacroJson& value_;
    std::string what_;
};

} // namespace quorvia::host
