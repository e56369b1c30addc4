// docs/instructions.md keeps its word: its examples parse, and its table names keys that exist.
#include <fstream>
#include <sstream>

#include "instructions/InstructionKeys.h"
#include "instructions/ParserFixture.h"
#include "support/TextPattern.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class DocumentedInstructions : public testsupport::ParserTest {
protected:
    static Texts lines() {
        std::ifstream document(INSTRUCTIONS_DOCUMENT);
        Texts all;
        for (std::string line; std::getline(document, line);)
            all.push_back(line);
        return all;
    }

    /// The indented lists, each cut into its strings at the blanks.
    static std::vector<Texts> examples() {
        std::vector<Texts> lists;
        for (const std::string& line : lines()) {
            if (line.rfind("    ", 0) != 0)
                continue;
            std::istringstream words(line);
            for (std::string word; words >> word;) {
                if (word == "STANDARDSYNTAX")
                    lists.emplace_back();
                lists.back().push_back(word);
            }
        }
        return lists;
    }

    /// The words of the first columns of the tables of keys and of older switches.
    static Texts tabulatedKeys() {
        Texts keys;
        const testsupport::TextPattern word("`(-?[A-Z0-9]+_?[A-Z]*)`");
        for (const std::string& line : lines())
            if (line.rfind("| `", 0) == 0) {
                const std::string column = line.substr(0, line.find('|', 1));
                for (const testsupport::Match& match : word.allMatches(column))
                    keys.push_back(match[1]);
            }
        return keys;
    }
};

TEST_F(DocumentedInstructions, Parse) {
    ASSERT_EQ(examples().size(), 3u);
    for (const Texts& example : examples()) {
        EXPECT_TRUE(parse(example));
        EXPECT_EQ(messages(), Texts());
    }
}

TEST_F(DocumentedInstructions, AreAllRead) {
    ASSERT_EQ(tabulatedKeys().size(), 44u);
    for (const std::string& key : tabulatedKeys())
        EXPECT_NE(findInstructionKey(key.c_str()), nullptr) << key;
}

} // namespace
} // namespace quorvia::quorutildataio
