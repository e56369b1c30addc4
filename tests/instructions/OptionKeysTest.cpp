// The table of keys, row by row: reader, writer and the program's settings know each.
#include "instructions/OptionKeys.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "app/Settings.h"
#include "instructions/InstructionKeys.h"
#include "instructions/InstructionWriter.h"
#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class OptionKeys : public testsupport::GuestTest {
protected:
    /// All keys that are among the strings, in their order.
    static Texts keysAmong(const Texts& texts) {
        Texts keys;
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(keys),
                     [](const std::string& text) { return findInstructionKey(text.c_str()); });
        return keys;
    }

    static Texts keysOfTheTable() {
        Texts words;
        for (const OptionKey_s& key : optionKeys)
            words.emplace_back(key.word);
        return words;
    }
};

TEST_F(OptionKeys, StandForOneMemberEach) {
    std::set<std::string> words;
    for (const OptionKey_s& key : optionKeys) {
        EXPECT_TRUE(words.insert(key.word).second) << key.word;
        EXPECT_EQ(std::count_if(std::begin(optionKeys), std::end(optionKeys),
                                [&](const auto& other) { return other.member == key.member; }),
                  1)
            << key.word;
    }
}

TEST_F(OptionKeys, AreReadUnderTheirWords) {
    for (const std::string& word : keysOfTheTable()) {
        const InstructionKey_s* key = findInstructionKey(word.c_str());
        ASSERT_NE(key, nullptr) << word;
        EXPECT_EQ(key->word, word);
    }
}

TEST_F(OptionKeys, OfRangesHaveALabelForMessages) {
    for (const OptionKey_s& key : optionKeys)
        EXPECT_EQ(key.rangeLabel != nullptr,
                  std::holds_alternative<OptionMember<Plot3DIndexRange_s>>(key.member))
            << key.word;
}

TEST_F(OptionKeys, AreWrittenInTheOrderOfTheTable) {
    const HostSet set = setOf({1});
    Plot3DLoadOptions_s options;
    setLoadOptionDefaults(options);
    options.gridFiles = options.solutionFiles = options.functionFiles = {"a"};
    options.hasNameFile = true;
    options.autoDetect = false;
    options.gridSet = set.get();
    EXPECT_EQ(keysAmong(textsOf(writeLoadInstructions(options))), keysOfTheTable());
}

TEST_F(OptionKeys, AreSettingsOfTheProgram) {
    const std::vector<std::string_view> known = host::settingKeys();
    for (const OptionKey_s& key : optionKeys)
        EXPECT_NE(std::find(known.begin(), known.end(), key.word), known.end()) << key.word;
}

} // namespace
} // namespace quorvia::quorutildataio
