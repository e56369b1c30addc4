// Options as commands declare them, and what the user's words make of them.
#include "console/options/OptionParser.h"

#include <gtest/gtest.h>

namespace plot3d::program {
namespace {

using Words = std::vector<std::string>;

class Options : public testing::Test {
protected:
    console::OptionParser parser;
    console::OptionTable table = parser.table();
    std::string word = "none";
    std::string other;
    Words list;
    Words files;
    int count = 7;
    double factor = 0.5;
    bool flag = false;
};

TEST_F(Options, PutValuesInTheirPlaces) {
    table.text("--word", word, "WORD", "");
    table.number("-n,--count", count, "COUNT", "");
    table.number("--factor", factor, "FACTOR", "");
    table.flag("--flag", flag, "");
    EXPECT_EQ(parser.parse({"--word", "[a]", "-n", "3", "--factor=-2.5e-1", "--flag"}), "");
    EXPECT_EQ(word, "[a]");
    EXPECT_EQ(count, 3);
    EXPECT_EQ(factor, -0.25);
    EXPECT_TRUE(flag);
}

TEST_F(Options, LeaveAloneWhatIsNotGiven) {
    table.text("--word", word, "WORD", "");
    table.number("--count", count, "COUNT", "");
    EXPECT_EQ(parser.parse({}), "");
    EXPECT_EQ(word, "none");
    EXPECT_EQ(count, 7);
}

TEST_F(Options, OfListsTakeOneValueEachTime) {
    table.list("--item", list, "ITEM", "");
    table.files(files, "");
    EXPECT_EQ(parser.parse({"--item", "{a}", "b", "--item=c"}), "");
    EXPECT_EQ(list, (Words{"{a}", "c"}));
    EXPECT_EQ(files, Words{"b"});
}

TEST_F(Options, OfListsMayTakeAllWordsUpToTheNextOption) {
    table.list("--item", list, "ITEM", "").takesSeveral();
    table.flag("--flag", flag, "");
    EXPECT_EQ(parser.parse({"--item", "a", "b", "--flag"}), "");
    EXPECT_EQ(list, (Words{"a", "b"}));
    EXPECT_EQ(parser.options().front().value, "ITEM...");
    EXPECT_FALSE(parser.options().front().takesFile());
}

TEST_F(Options, AreRefusedWithTheReasonOfTheirCheck) {
    table.number("--count", count, "COUNT", "").check([](const std::string& text) {
        return text == "3" ? std::string() : text + " is not 3";
    });
    EXPECT_EQ(parser.parse({"--count", "4"}), "--count: 4 is not 3");
    EXPECT_EQ(count, 7);
}

TEST_F(Options, MayNeedOrExcludeOneAnother) {
    table.text("--word", word, "WORD", "").required();
    table.text("--other", other, "WORD", "").excludes({"--word"});
    EXPECT_EQ(parser.parse({}), "--word is required");
    EXPECT_EQ(parser.parse({"--word", "a", "--other", "b"}), "--word excludes --other");
}

TEST_F(Options, AreRefusedThatComeTwiceOrWithoutTheirValue) {
    table.text("--word", word, "WORD", "");
    table.list("--item", list, "ITEM", "").takesSeveral();
    EXPECT_EQ(parser.parse({"--word", "a", "--word=b"}), "--word is given more than once");
    EXPECT_EQ(parser.parse({"--word"}), "--word needs WORD");
    EXPECT_EQ(parser.parse({"--item"}), "--item needs ITEM...");
}

TEST_F(Options, ThatNobodyDeclaredAreTold) {
    table.flag("--flag", flag, "");
    EXPECT_EQ(parser.parse({"--flag", "--flga", "a"}), "");
    EXPECT_EQ(parser.unknownWords(), (Words{"--flga", "a"}));
}

TEST_F(Options, ThatAreHiddenAreUnderstood) {
    table.flag("--flag", flag, "");
    table.text("--word", word, "WORD", "");
    table.declared("--flag").hidden();
    ASSERT_EQ(parser.options().size(), 1U);
    EXPECT_EQ(parser.options().front().names, Words{"--word"});
    EXPECT_EQ(parser.parse({"--flag"}), "");
    EXPECT_TRUE(flag);
}

TEST_F(Options, StandUnderTheirHeadings) {
    table.flag("--flag", flag, "One,\nand another");
    table.under("Sizes").number("--count", count, "1|3", "");
    const std::vector<console::OptionRow_s> rows = parser.options();
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].group, "Options");
    EXPECT_EQ(rows[0].text, "One, and another");
    EXPECT_EQ(rows[0].value, "");
    EXPECT_EQ(rows[1].group, "Sizes");
    EXPECT_EQ(rows[1].choices, (Words{"1", "3"}));
}

} // namespace
} // namespace plot3d::program
