#include "open/Facts.h"

#include <algorithm>
#include <vector>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

namespace {

bool isPlain(char character) {
    constexpr std::string_view others = "_-./,:+=@%";
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') ||
           others.find(character) != std::string_view::npos;
}

/// As a shell takes it for one word.
std::string quoted(const std::string& word) {
    if (!word.empty() && std::all_of(word.begin(), word.end(), isPlain))
        return word;
    std::string text = "'";
    for (const char character : word)
        text += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return text + "'";
}

std::vector<std::string> withGrid(std::vector<std::string> command,
                                  const std::vector<std::string>& grids) {
    if (grids.size() == 1)
        std::replace(command.begin(), command.end(), std::string(gridToName), grids.front());
    return command;
}

} // namespace

std::string commandOf(const std::vector<std::string>& words) {
    std::string command;
    for (const std::string& word : words)
        command += (command.empty() ? "" : " ") + quoted(word);
    return command;
}

plot3d::ErrorFacts factsOf(const plot3d::FileInfo& info, const std::vector<std::string>& grids) {
    plot3d::ErrorFacts facts = ofFile(info.file);
    if (info.problem) {
        facts.byte = info.problem->misfit.byte;
        facts.expected = info.problem->misfit.expected;
        facts.found = info.problem->misfit.found;
        facts.next = commandOf(withGrid(info.problem->next, grids));
    }
    if (facts.next.empty())
        facts.next = commandOf({"plot3d", "info", "--why", info.file});
    return facts;
}

} // namespace plot3dlib
