#include "instructions/InstructionStrings.h"

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class InstructionStrings : public testsupport::GuestTest {
protected:
    static constexpr bool reportMissing = true;

    void TearDown() override {
        current_.reset();
        GuestTest::TearDown();
    }

    HostString current_;
    std::int64_t index_ = 0;
};

TEST_F(InstructionStrings, ComeOneAfterTheOther) {
    const HostStringList list = listOf({"a", "b"});
    EXPECT_TRUE(nextInstructionString(current_, list.get(), index_, reportMissing));
    EXPECT_TRUE(nextInstructionString(current_, list.get(), index_, reportMissing));
    EXPECT_EQ(current_.view(), "b");
    EXPECT_EQ(index_, 2);
}

TEST_F(InstructionStrings, EndSilentlyUnlessAValueIsDue) {
    const HostStringList list = listOf({});
    EXPECT_FALSE(nextInstructionString(current_, list.get(), index_, !reportMissing));
    EXPECT_EQ(messages(), Texts());
}

TEST_F(InstructionStrings, TellOfAMissingValueByTheStringBefore) {
    const HostStringList list = listOf({"APPEND"});
    index_ = 1;
    EXPECT_FALSE(nextInstructionString(current_, list.get(), index_, reportMissing));
    EXPECT_EQ(messages(),
              Texts{"Error in PLOT3D loader instructions.\nExpecting option for: APPEND"});
    EXPECT_FALSE(current_);
}

TEST_F(InstructionStrings, TellOfNamesOfAnyLength) {
    const std::string name(4999, 'n');
    showMissingOption(name);
    EXPECT_EQ(messages(),
              Texts{"Error in PLOT3D loader instructions.\nExpecting option for: " + name});
}

TEST_F(InstructionStrings, LeaveABooleanAloneWhenNoneFollows) {
    const HostStringList list = listOf({"APPEND"});
    bool field = true;
    index_ = 1;
    EXPECT_FALSE(readBooleanInstruction(field, current_, list.get(), index_));
    EXPECT_TRUE(field);
}

TEST(TrueString, IsOneOfFiveWordsInAnyCase) {
    for (const char* word : {"Yes", "Y", "True", "T", "YouBetcha", "yes", "TRUE", "youbetcha"})
        EXPECT_TRUE(isTrueString(word)) << word;
    for (const char* word : {"No", "On", "1", "", "Yes ", "Ye", "YesYes"})
        EXPECT_FALSE(isTrueString(word)) << word;
    EXPECT_FALSE(isTrueString(nullptr));
}

struct CountSpelling_s {
    const char* text;
    bool isRead;
    std::int32_t count; // if it is read
};

class Count : public ::testing::TestWithParam<CountSpelling_s> {};

TEST_P(Count, ReadsOrRefuses) {
    std::int32_t count = 0;
    EXPECT_EQ(parseCount(GetParam().text, count), GetParam().isRead);
    if (GetParam().isRead) {
        EXPECT_EQ(count, GetParam().count);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Spellings, Count,
    ::testing::Values(CountSpelling_s{"17", true, 17}, CountSpelling_s{" \t\n 17", true, 17},
                      CountSpelling_s{"17 files", true, 17}, CountSpelling_s{"17.9", true, 17},
                      CountSpelling_s{"+5", true, 5}, CountSpelling_s{"-5", true, -5},
                      CountSpelling_s{"007", true, 7},
                      CountSpelling_s{"2147483647", true, 2147483647},
                      CountSpelling_s{"2147483648", false, 0}, CountSpelling_s{"", false, 0},
                      CountSpelling_s{"many", false, 0}, CountSpelling_s{"+-5", false, 0}));

TEST(FileName, IsTrimmedAtItsEndsOnly) {
    EXPECT_EQ(trimFileName(" \t\r\na b.x\n\r\t "), "a b.x");
    EXPECT_EQ(trimFileName("a.x"), "a.x");
    EXPECT_EQ(trimFileName("\va.x"), "\va.x");
    EXPECT_EQ(trimFileName(" \t\r\n"), "");
    EXPECT_EQ(trimFileName(""), "");
}

} // namespace
} // namespace quorvia::quorutildataio
