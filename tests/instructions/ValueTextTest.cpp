#include "instructions/ValueText.h"

#include <climits>

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Members;

TEST(CompareNoCase, FoldsAsciiLettersAndNothingElse) {
    EXPECT_EQ(compareNoCase("yes", "YES", INT_MAX), 0);
    EXPECT_NE(compareNoCase("yes", "yesterday", INT_MAX), 0);
    EXPECT_NE(compareNoCase("{", "[", INT_MAX), 0);
    EXPECT_NE(compareNoCase("\xc3\xa9", "\xc3\x89", INT_MAX), 0); // e acute, small and capital
}

TEST(CompareNoCase, OrdersByTheFirstFoldedBytesThatDiffer) {
    EXPECT_EQ(compareNoCase("axb", "AYA", INT_MAX), 'X' - 'Y');
    EXPECT_EQ(compareNoCase("ab", "a", INT_MAX), 'B');
    EXPECT_EQ(compareNoCase("a", "ab", INT_MAX), -'B');
    EXPECT_LT(compareNoCase("\xff", "a", INT_MAX), 0); // bytes are signed
}

TEST(CompareNoCase, PutsNullBelowEveryString) {
    EXPECT_EQ(compareNoCase(nullptr, nullptr, INT_MAX), 0);
    EXPECT_EQ(compareNoCase(nullptr, "", INT_MAX), -1);
    EXPECT_EQ(compareNoCase("", nullptr, INT_MAX), 1);
}

TEST(CompareNoCase, LooksAtNoMoreThanTheLimit) {
    EXPECT_EQ(compareNoCase("boundaries 7", "BOUNDARIES", 10), 0);
    EXPECT_NE(compareNoCase("boundaries 7", "BOUNDARIES", 11), 0);
    EXPECT_EQ(compareNoCase("a", "b", 0), 0);
}

struct IntegerSpelling_s {
    const char* text;
    bool isRead;
    std::int64_t value;
    const char* rest;
};

class ReadSignedInteger : public ::testing::TestWithParam<IntegerSpelling_s> {};

TEST_P(ReadSignedInteger, ReadsOrRefuses) {
    const char* cursor = GetParam().text;
    std::int64_t value = 17;
    EXPECT_EQ(readSignedInteger(cursor, value), GetParam().isRead);
    EXPECT_EQ(value, GetParam().value);
    EXPECT_STREQ(cursor, GetParam().rest);
}

INSTANTIATE_TEST_SUITE_P(
    Spellings, ReadSignedInteger,
    ::testing::Values(
        IntegerSpelling_s{"1234567890", true, 1234567890, ""},
        IntegerSpelling_s{"9999999999,", true, 9999999999, ","},
        IntegerSpelling_s{"12345678901", false, 17, "1"}, IntegerSpelling_s{"007", true, 7, ""},
        IntegerSpelling_s{" \t42 x", true, 42, " x"}, IntegerSpelling_s{"-5", true, -5, ""},
        IntegerSpelling_s{"+5", false, 17, "+5"}, IntegerSpelling_s{"", false, 17, ""},
        IntegerSpelling_s{"a", false, 17, "a"}, IntegerSpelling_s{"\n1", false, 17, "\n1"},
        // The sign is applied to what stood there before, also on failure.
        IntegerSpelling_s{"-x", false, -17, "x"}, IntegerSpelling_s{"- 3", false, -17, " 3"}));

class SetText : public testsupport::GuestTest {
protected:
    static constexpr bool withBrackets = true;

    /// The members of the set; {-1} if the text is refused.
    static Members membersOfText(const char* text, bool inBrackets = !withBrackets) {
        HostSet set;
        if (parseSetText(text, set, inBrackets))
            return membersOf(set.get());
        EXPECT_FALSE(set);
        return {-1};
    }
};

const Members refused = {-1};

TEST_F(SetText, ReadsItemsRunsAndSkips) {
    EXPECT_EQ(membersOfText("1-5,7,12"), (Members{1, 2, 3, 4, 5, 7, 12}));
    EXPECT_EQ(membersOfText("1-9:2"), (Members{1, 3, 5, 7, 9}));
    EXPECT_EQ(membersOfText("1 - 8 : 3"), (Members{1, 4, 7}));
    EXPECT_EQ(membersOfText("1 2,3"), (Members{1, 2, 3}));
    EXPECT_EQ(membersOfText(" \t2 , 5\t"), (Members{2, 5}));
    EXPECT_EQ(membersOfText("3-3"), (Members{3}));
    EXPECT_EQ(membersOfText("7,"), (Members{7}));
}

TEST_F(SetText, RefusesWhatIsNoSetOfPositiveNumbers) {
    for (const char* text : {"0", "5-3", "-3", "1-", "1:2", "1-5:0", "1-5:", "1-0", "a", "1,,2",
                             ",1", "1;2", "[1]", "12345678901"})
        EXPECT_EQ(membersOfText(text), refused) << text;
}

TEST_F(SetText, WithAMemberPast32BitsIsRefusedBeforeAnythingIsAdded) {
    for (const char* text : {"2147483648", "1-9999999999", "1-9999999999:9999999998"}) {
        const std::int64_t before = host().callCount("QuorUtilSetAddMember");
        EXPECT_EQ(membersOfText(text), refused) << text;
        EXPECT_EQ(host().callCount("QuorUtilSetAddMember"), before) << text;
    }
    EXPECT_EQ(membersOfText("1-9999999999:9999999999"), (Members{1}));
    EXPECT_EQ(membersOfText("2147483647"), (Members{2147483647}));
}

TEST_F(SetText, OfNothingIsAnEmptySet) {
    HostSet set;
    EXPECT_TRUE(parseSetText("", set, !withBrackets));
    EXPECT_TRUE(set);
    EXPECT_EQ(membersOfText(" \t"), Members());
    EXPECT_EQ(membersOfText("[]", withBrackets), Members());
}

TEST_F(SetText, InBracketsEndsAtTheClosingOne) {
    EXPECT_EQ(membersOfText("[1-3] junk", withBrackets), (Members{1, 2, 3}));
    EXPECT_EQ(membersOfText(" [ 1 , 2 ]", withBrackets), (Members{1, 2}));
    EXPECT_EQ(membersOfText("[1-3", withBrackets), (Members{1, 2, 3}));
    EXPECT_EQ(membersOfText("1-3", withBrackets), refused);
    EXPECT_EQ(membersOfText("", withBrackets), refused);
}

TEST_F(SetText, IsRefusedWithAMemberThatTheHostRefuses) {
    EXPECT_EQ(membersOfText("2147483647"), (Members{2147483647}));
    EXPECT_EQ(membersOfText("2147483648"), refused);
    host().failCall("QuorUtilSetAddMember", 2);
    EXPECT_EQ(membersOfText("1-3"), refused);
}

TEST_F(SetText, IsRefusedIfTheHostHasNoSet) {
    host().failCall("QuorUtilSetAlloc", 1);
    EXPECT_EQ(membersOfText("1"), refused);
}

TEST_F(SetText, ReplacesTheSetThatWasThere) {
    HostSet set = setOf({11});
    EXPECT_TRUE(parseSetText("2", set, !withBrackets));
    EXPECT_EQ(membersOf(set.get()), Members{2});
}

TEST(IntegerText, IsPlainDecimal) {
    EXPECT_EQ(integerToText(0), "0");
    EXPECT_EQ(integerToText(-1234567), "-1234567");
    EXPECT_EQ(integerToText(LLONG_MIN), "-9223372036854775808");
}

class HostText : public testsupport::GuestTest {};

TEST_F(HostText, GrowsFromNothing) {
    HostString text;
    appendToHostString(text, "a");
    appendToHostString(text, "bc");
    EXPECT_EQ(text.view(), "abc");
}

TEST_F(HostText, IsNullWithoutMemory) {
    HostString text = HostString::copyOf("a");
    host().failCall("QuorUtilStringAlloc", 1);
    appendToHostString(text, "b");
    EXPECT_EQ(text.get(), nullptr);
}

TEST(SetEdge, EndsARunOrBeginsTheNext) {
    std::string text = "1";
    appendSetEdge(text, true, 5);
    appendSetEdge(text, false, 7);
    EXPECT_EQ(text, "1-5,7");
}

} // namespace
} // namespace quorvia::quorutildataio
