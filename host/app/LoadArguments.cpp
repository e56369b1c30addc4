#include "app/LoadArguments.h"

#include <charconv>
#include <limits>
#include <string_view>

namespace quorvia::host {
namespace {

void appendFileList(std::vector<std::string>& instructions, const char* key,
                    const std::vector<std::string>& names) {
    if (names.empty())
        return;
    instructions.emplace_back(key);
    instructions.push_back(std::to_string(names.size()));
    instructions.insert(instructions.end(), names.begin(), names.end());
}

/// Nothing for an unknown unit.
std::optional<std::int64_t> bytesOfUnit(std::string_view unit) {
    if (unit.empty())
        return 1;
    if (unit == "K" || unit == "k")
        return std::int64_t{1} << 10;
    if (unit == "M" || unit == "m")
        return std::int64_t{1} << 20;
    if (unit == "G" || unit == "g")
        return std::int64_t{1} << 30;
    return std::nullopt;
}

} // namespace

std::vector<std::string> composeInstructions(const LoadArguments_s& arguments) {
    std::vector<std::string> instructions = {"STANDARDSYNTAX", "1.0"};
    appendFileList(instructions, "FILELIST_GRIDFILES", arguments.gridFiles);
    appendFileList(instructions, "FILELIST_SOLUTIONFILES", arguments.solutionFiles);
    appendFileList(instructions, "FILELIST_FUNCTIONFILES", arguments.functionFiles);
    for (const std::string& name : arguments.nameFiles) {
        instructions.emplace_back("FILENAME_NAMEFILE");
        instructions.push_back(name);
    }
    for (const auto& [key, value] : arguments.settings) {
        instructions.push_back(key);
        instructions.push_back(value);
    }
    return instructions;
}

std::optional<std::int64_t> parseMemorySize(std::string_view text) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || number <= 0)
        return std::nullopt;
    const auto unit = bytesOfUnit({stop, static_cast<std::size_t>(end - stop)});
    if (!unit || number > std::numeric_limits<std::int64_t>::max() / *unit)
        return std::nullopt;
    return number * *unit;
}

std::optional<std::pair<std::string, std::string>> parseSetting(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals == 0)
        return std::nullopt;
    return std::pair(std::string(text.substr(0, equals)), std::string(text.substr(equals + 1)));
}

} // namespace quorvia::host
