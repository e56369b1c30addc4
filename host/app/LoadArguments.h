// What the command line of `quorhost load` asks for, and the list of load instructions that it
// makes.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorvia::host {

/// Budget for fetched values if the command line names none: enough for the largest usual field,
/// and no reason for a small machine to swap.
inline constexpr std::int64_t defaultMemoryLimitBytes = std::int64_t{1} << 30;

struct LoadArguments_s {
    // Either files as picked in the host's import menu, or lists for instructions; never both.
    std::vector<std::string> files;
    std::vector<std::string> gridFiles;
    std::vector<std::string> solutionFiles;
    std::vector<std::string> functionFiles;
    std::vector<std::string> nameFiles;
    std::vector<std::pair<std::string, std::string>> settings; // --set, in the order given

    bool answerYes = false;
    std::int64_t memoryLimitBytes = defaultMemoryLimitBytes;
    bool fetchValues = true;
    bool printInstructions = false;
    std::string jsonFile;  // "-" is standard output; empty: none
    std::string addOnPath; // empty: the one that was built with the program

    bool usesInstructions() const { return files.empty(); }
    bool jsonToOutput() const { return jsonFile == "-"; }
};

/// The standard syntax, the file lists in the order grid, solution, function, name, then the
/// settings; names as they were given. Each name file becomes an instruction of its own, and the
/// last one counts.
std::vector<std::string> composeInstructions(const LoadArguments_s& arguments);

/// "512M": a whole number of bytes above 0, or of K, M or G (1024, 1024^2, 1024^3 bytes), in either
/// case. Nothing for any other text and for sizes that 64 bits can't hold.
std::optional<std::int64_t> parseMemorySize(std::string_view text);

/// "KEY=VALUE" at its first "=". Nothing without one, or for an empty key; the value may be empty.
std::optional<std::pair<std::string, std::string>> parseSetting(std::string_view text);

} // namespace quorvia::host
