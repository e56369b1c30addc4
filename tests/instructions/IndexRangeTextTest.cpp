#include "instructions/IndexRangeText.h"

#include "support/HostedTest.h"

namespace quorvia::quorutildataio {
namespace {

using testsupport::Texts;

class IndexRangeText : public testsupport::GuestTest {
protected:
    bool parse(const char* text) { return parseIndexRange(text, range_, "J-Index"); }

    /// start, end, skip
    std::vector<std::int32_t> read(const char* text) {
        range_ = {1, 0, 1};
        EXPECT_TRUE(parse(text)) << text;
        return {range_.start, range_.end, range_.skip};
    }

    /// The one message about a text that is refused.
    std::string faultOf(const char* text) {
        host().clearLog();
        range_ = {1, 0, 1};
        EXPECT_FALSE(parse(text)) << text;
        EXPECT_EQ(messages().size(), 1u) << text;
        return messages().empty() ? "" : messages().front();
    }

    Plot3DIndexRange_s range_ = {1, 0, 1};
};

using Fields = std::vector<std::int32_t>;

TEST_F(IndexRangeText, KeepsWhatEmptyFieldsHeld) {
    EXPECT_EQ(read("1,,1"), (Fields{1, 0, 1}));
    EXPECT_EQ(read(",,2"), (Fields{1, 0, 2}));
    EXPECT_EQ(read(",5,"), (Fields{1, 5, 1}));
    EXPECT_EQ(read("2,40,3"), (Fields{2, 40, 3}));
    EXPECT_EQ(read("5,0,1"), (Fields{5, 0, 1}));
}

TEST_F(IndexRangeText, EndsFieldsAtBlanksAndLineEndsToo) {
    EXPECT_EQ(read("2 40\n3"), (Fields{2, 40, 3}));
    EXPECT_EQ(read("2,40,3,what follows is not read"), (Fields{2, 40, 3}));
}

TEST_F(IndexRangeText, KeepsTheFieldsThatAShortTextDoesNotReach) {
    EXPECT_EQ(read("5,7"), (Fields{5, 7, 1}));
    EXPECT_EQ(read("5"), (Fields{5, 0, 1}));
    EXPECT_EQ(read(""), (Fields{1, 0, 1}));
}

TEST_F(IndexRangeText, TakesNineDigitsAndLeadingZeros) {
    EXPECT_EQ(read("123456789,999999999,1"), (Fields{123456789, 999999999, 1}));
    EXPECT_EQ(read("000000000000007,,1"), (Fields{7, 0, 1}));
}

TEST_F(IndexRangeText, RefusesATenthDigit) {
    EXPECT_EQ(faultOf("1234567890,,1"), "Input too large.");
    EXPECT_EQ(faultOf("1,1000000000,1"), "Input too large.");
}

TEST_F(IndexRangeText, RefusesWhatIsNoNumber) {
    const std::string fault = "Invalid definition for J-Index Start,End,Skip";
    for (const char* text : {"1,5,a", "-1,,1", "+1,,1", "1;2;3", "1\t2", "1.5,,1"})
        EXPECT_EQ(faultOf(text), fault) << text;
}

TEST_F(IndexRangeText, RefusesAStartBelowOne) {
    const std::string fault = "Index range start must be greater than or equal to 1.\n"
                              "This error also may indicate that the start value is too large.";
    EXPECT_EQ(faultOf("0,5,1"), fault);
    EXPECT_EQ(faultOf("0,5,0"), fault);
}

TEST_F(IndexRangeText, RefusesASkipBelowOne) {
    const std::string fault = "Index range skip must be greater than or equal to 1.\n"
                              "This error also may indicate that the skip value is too large.";
    EXPECT_EQ(faultOf("1,5,0"), fault);
    EXPECT_EQ(faultOf("5,3,0"), fault);
}

TEST_F(IndexRangeText, RefusesAnEndBelowTheStart) {
    EXPECT_EQ(faultOf("5,3,1"),
              "Index range end must be greater than or equal to index range start.");
}

TEST_F(IndexRangeText, RefusesANegativeEndThatStoodThere) {
    range_ = {1, -1, 1};
    EXPECT_FALSE(parse("1,,1"));
    EXPECT_EQ(messages(), Texts{"Index range end must be greater than or equal to zero.\n"
                                "This error also may indicate that the end value is too large."});
}

TEST_F(IndexRangeText, MovesTheCursorBehindTheSeparatorButNotBehindTheEnd) {
    const char* cursor = "12,3";
    std::int32_t field = 0;
    EXPECT_TRUE(parseIndexRangeField(cursor, field, "J-Index"));
    EXPECT_STREQ(cursor, "3");
    EXPECT_TRUE(parseIndexRangeField(cursor, field, "J-Index"));
    EXPECT_STREQ(cursor, "");
    EXPECT_EQ(field, 3);
}

} // namespace
} // namespace quorvia::quorutildataio
