// What `quorhost load --set` takes, held against the loader's own tables and the document.
#include "app/Settings.h"

#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "instructions/InstructionKeys.h"
#include "instructions/InstructionWords.h"
#include "support/TextPattern.h"

namespace quorvia::quorutildataio {
namespace {

using host::settingKeys;
using host::settingProblem;

/// The keys of the document's first table.
std::vector<std::string> documentedKeys() {
    const testsupport::TextPattern row("^\\| `([A-Z_]+)`(, `([A-Z_]+)`)? \\|.*");
    std::vector<std::string> keys;
    std::ifstream document(INSTRUCTIONS_DOCUMENT);
    for (std::string line; std::getline(document, line) && line != "### Names";) {
        const testsupport::Match match = row.matchOfWhole(line);
        if (match.empty())
            continue;
        keys.push_back(match[1]);
        if (!match[3].empty())
            keys.push_back(match[3]);
    }
    return keys;
}

TEST(Settings, KeysAreKeysOfTheLoader) {
    for (const std::string_view key : settingKeys())
        EXPECT_NE(findInstructionKey(std::string(key).c_str()), nullptr) << key;
}

TEST(Settings, EveryDocumentedKeyIsKnown) {
    const std::vector<std::string_view> known = settingKeys();
    EXPECT_EQ(documentedKeys().size(), 22U);
    for (const std::string& key : documentedKeys())
        EXPECT_NE(std::find(known.begin(), known.end(), key), known.end()) << key;
}

TEST(Settings, WordsAreThoseOfTheLoader) {
    for (const auto& entry : styleWords)
        EXPECT_EQ(settingProblem("STYLE", entry.word), "");
    for (const auto& entry : dataStructureWords)
        EXPECT_EQ(settingProblem("datastructure", entry.word), "");
    for (const char* word : {"Yes", "no", "T", "false", "YouBetcha"})
        EXPECT_EQ(settingProblem("APPEND", word), "");
}

/// The row of a key in the document; empty if it has none.
std::string documentedRow(const std::string& key) {
    std::ifstream document(INSTRUCTIONS_DOCUMENT);
    for (std::string line; std::getline(document, line);)
        if (line.rfind("| `" + key + "` |", 0) == 0)
            return line;
    return "";
}

TEST(Settings, EveryWordIsDocumented) {
    const std::string styles = documentedRow("STYLE");
    for (const auto& entry : styleWords)
        EXPECT_NE(styles.find("`" + std::string(entry.word) + "`"), std::string::npos)
            << entry.word;
    const std::string structures = documentedRow("DATASTRUCTURE");
    for (const auto& entry : dataStructureWords)
        EXPECT_NE(structures.find("`" + std::string(entry.word) + "`"), std::string::npos)
            << entry.word;
}

TEST(Settings, RangesSetsAndNamesAreLeftToTheLoader) {
    EXPECT_EQ(settingProblem("IINDEXRANGE", "x"), "");
    EXPECT_EQ(settingProblem("FILEGRIDSET", ""), "");
    EXPECT_EQ(settingProblem("FILENAME_NAMEFILE", "any name"), "");
}

TEST(Settings, SwitchesHaveNoValueAndAreRefused) {
    for (const char* word : {"-M", "-I", "-2D", "-FUNCTION", "-B", "STANDARDSYNTAX", "1.0"})
        EXPECT_NE(settingProblem(word, ""), "") << word;
}

} // namespace
} // namespace quorvia::quorutildataio
