// The examples of docs/macros.md are sound macros, and it tells of every command.
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "app/macro/MacroParser.h"

namespace quorvia::host {
namespace {

std::string documentText() {
    std::ostringstream text;
    text << std::ifstream(PLOT3D_SOURCE_DIR "/docs/macros.md").rdbuf();
    return text.str();
}

std::vector<std::string> examplesOf(const std::string& text) {
    const std::string opening = "```json\n";
    std::vector<std::string> examples;
    std::size_t start = text.find(opening);
    while (start != std::string::npos) {
        start += opening.size();
        const std::size_t end = text.find("```", start);
        examples.push_back(text.substr(start, end - start));
        start = text.find(opening, end);
    }
    return examples;
}

TEST(DocumentedMacros, AreSound) {
    const std::vector<std::string> examples = examplesOf(documentText());
    EXPECT_EQ(4U, examples.size());
    for (const std::string& example : examples) {
        std::string error;
        EXPECT_TRUE(parseMacro(example, error).has_value()) << error << " in\n" << example;
    }
}

TEST(DocumentedMacros, TellOfEveryCommand) {
    const std::string text = documentText();
    for (const char* name :
         {"select", "instructions", "replay", "answers", "dialog", "host", "dataSet",
          "interruptAtStep", "fail", "stateChange", "fetch", "unload", "deleteZones", "resetFrame"})
        EXPECT_NE(std::string::npos, text.find("| `" + std::string(name) + "` |")) << name;
    EXPECT_NE(std::string::npos, text.find("\n`describe` takes a name"));
}

} // namespace
} // namespace quorvia::host
