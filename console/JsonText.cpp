#include "console/JsonText.h"

#include <algorithm>
#include <cmath>

#include <nlohmann/json.hpp>

namespace console {
namespace {

using Json = nlohmann::json;

/// Whether every byte stands for itself between the quotes. Most texts do, so this is the inner
/// loop.
bool isPlain(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char byte) {
        return byte >= ' ' && byte <= '~' && byte != '"' && byte != '\\';
    });
}

std::string onOneLine(const Json& value, Json::error_handler_t otherThanUtf8) {
    constexpr int noIndent = -1;
    return value.dump(noIndent, ' ', false, otherThanUtf8);
}

} // namespace

bool isUtf8(std::string_view text) {
    if (isPlain(text))
        return true;
    try {
        return !onOneLine(text, Json::error_handler_t::strict).empty();
    } catch (const Json::type_error&) { // as the library tells it
        return false;
    }
}

std::string jsonText(std::string_view text) {
    if (!isPlain(text))
        return onOneLine(text, Json::error_handler_t::replace);
    std::string quoted;
    quoted.reserve(text.size() + 2);
    return quoted.append(1, '"').append(text).append(1, '"');
}

std::string jsonNumber(double number) {
    if (std::isnan(number))
        return R"("NaN")";
    if (std::isinf(number))
        return number > 0 ? R"("Infinity")" : R"("-Infinity")";
    return onOneLine(number, Json::error_handler_t::strict);
}

std::optional<std::vector<std::string>> jsonTexts(std::string_view json,
                                                  std::initializer_list<const char*> path) {
    try {
        const Json whole = Json::parse(json);
        const Json* value = &whole;
        for (const char* key : path)
            value = &value->at(key);
        if (value->is_string())
            return {{value->get<std::string>()}};
        return value->get<std::vector<std::string>>();
    } catch (const Json::exception&) { // told by the result
        return std::nullopt;
    }
}

} // namespace console
