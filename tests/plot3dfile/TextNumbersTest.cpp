// The spellings of numbers in text files, accepted and refused side by side.
#include <cmath>
#include <limits>

#include "RecordFixture.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {
namespace {

constexpr double infinite = std::numeric_limits<double>::infinity();

struct Spelling_s {
    const char* text;
    double value;
    int next; // character that the reader stopped at
};

void PrintTo(const Spelling_s& spelling, std::ostream* out) {
    *out << '"' << spelling.text << '"';
}

class TextNumbers : public testsupport::RecordFixture {
protected:
    double real() {
        double value = -999.0;
        isRead = readReal(*file, value);
        return value;
    }
    std::int32_t integer() {
        std::int32_t value = -999;
        isRead = readInteger(*file, value);
        return value;
    }

    bool isRead = false;
};

class AcceptedReal : public TextNumbers, public ::testing::WithParamInterface<Spelling_s> {};

TEST_P(AcceptedReal, IsReadOneByOne) {
    openText(GetParam().text);
    EXPECT_EQ(real(), GetParam().value);
    EXPECT_TRUE(isRead);
    EXPECT_EQ(file->lookahead, GetParam().next);
}

// Followed by others, so that all of it is in the buffer and the bulk reader sees it.
TEST_P(AcceptedReal, IsReadInBulk) {
    openText("7 " + std::string(GetParam().text) + " 11\n").isDoublePrecision = true;
    double values[2] = {};
    EXPECT_TRUE(readReals(*file, true, 0, 2, values, nullptr));
    EXPECT_EQ(values[1], GetParam().value);
    EXPECT_EQ(std::signbit(values[1]), std::signbit(GetParam().value));
}

INSTANTIATE_TEST_SUITE_P(
    Spellings, AcceptedReal,
    ::testing::Values(
        Spelling_s{"5", 5.0, -1}, Spelling_s{"+5", 5.0, -1}, Spelling_s{"-5", -5.0, -1},
        Spelling_s{"007", 7.0, -1}, Spelling_s{".5", 0.5, -1}, Spelling_s{"5.", 5.0, -1},
        Spelling_s{"-.5", -0.5, -1}, Spelling_s{"+.5", 0.5, -1}, Spelling_s{"1.5E+02", 150.0, -1},
        Spelling_s{"1.5D+02", 150.0, -1}, Spelling_s{"1.5d-02", 0.015, -1},
        Spelling_s{"1.5e+02", 150.0, -1}, Spelling_s{"1e3", 1000.0, -1},
        Spelling_s{"1D3", 1000.0, -1}, Spelling_s{"-1.5D+02", -150.0, -1},
        Spelling_s{"+1.5D+02", 150.0, -1}, Spelling_s{"  \t\r\n,,5", 5.0, -1},
        // An integer has no -0; a real has.
        Spelling_s{"-0", 0.0, -1}, Spelling_s{"-0.", -0.0, -1}, Spelling_s{"-0E5", -0.0, -1},
        // Without point and exponent it is an integer of 32 bits, and wraps.
        Spelling_s{"2147483647", 2147483647.0, -1}, Spelling_s{"2147483648", -2147483648.0, -1},
        Spelling_s{"-2147483648", -2147483648.0, -1}, Spelling_s{"4294967301", 5.0, -1},
        Spelling_s{"2147483648.", 2147483648.0, -1}, Spelling_s{"3000000000E0", 3e9, -1},
        // Out of range.
        Spelling_s{"1E999", infinite, -1}, Spelling_s{"-1E999", -infinite, -1},
        Spelling_s{"1E-999", 0.0, -1}, Spelling_s{"4.9E-324", 4.9e-324, -1},
        Spelling_s{"1.7976931348623157E308", 1.7976931348623157e308, -1},
        // What follows a good beginning inside the token is dropped.
        Spelling_s{"1.5-3", 1.5, -1}, Spelling_s{"1.5.7", 1.5, -1}, Spelling_s{"1E", 1.0, -1},
        Spelling_s{"1E+", 1.0, -1}, Spelling_s{"1.5E2.5", 150.0, -1},
        // No number at all, but a point or an exponent letter: 0, and valid.
        Spelling_s{".", 0.0, -1}, Spelling_s{"-.", 0.0, -1}, Spelling_s{"..5", 0.0, -1},
        Spelling_s{"+-5.", 0.0, -1}, Spelling_s{"-E5", 0.0, -1}, Spelling_s{".D3", 0.0, -1}));

INSTANTIATE_TEST_SUITE_P(LongTokens, AcceptedReal,
                         ::testing::Values(Spelling_s{"0.12345678901234567890123456789012345678",
                                                      0.12345678901234568, -1},
                                           Spelling_s{"0000000000000000000000000000000000000007",
                                                      7.0, -1}));

TEST_F(TextNumbers, StopCharacterOfARealIsKept) {
    openText("1.5x7");
    EXPECT_EQ(real(), 1.5);
    EXPECT_EQ(file->lookahead, 'x');
    EXPECT_EQ(real(), 0.0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, 'x');
}

TEST_F(TextNumbers, CommaSeparates) {
    openText("1,2,,3");
    EXPECT_EQ(real(), 1.0);
    EXPECT_EQ(integer(), 2);
    EXPECT_EQ(real(), 3.0);
}

class RefusedReal : public TextNumbers, public ::testing::WithParamInterface<Spelling_s> {};

TEST_P(RefusedReal, LeavesZeroAndTheLookahead) {
    openText(GetParam().text);
    EXPECT_EQ(real(), 0.0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, GetParam().next);
}

TEST_P(RefusedReal, StopsTheBulkReaderWhereItStands) {
    openText("7 8 " + std::string(GetParam().text) + " 11\n").isDoublePrecision = true;
    double values[4] = {-1.0, -1.0, -1.0, -1.0};
    EXPECT_FALSE(readReals(*file, true, 0, 4, values, nullptr));
    EXPECT_EQ(values[1], 8.0);
    EXPECT_EQ(values[2], -1.0);
}

INSTANTIATE_TEST_SUITE_P(Spellings, RefusedReal,
                         ::testing::Values(Spelling_s{"*****", 0, ' '}, Spelling_s{"abc", 0, ' '},
                                           Spelling_s{"E5", 0, ' '}, Spelling_s{"D5", 0, ' '},
                                           Spelling_s{"nan", 0, ' '}, Spelling_s{"inf", 0, ' '},
                                           Spelling_s{"\v5", 0, ' '}, Spelling_s{"/5", 0, ' '},
                                           // Integers with something left over.
                                           Spelling_s{"1-2", 0, -1}, Spelling_s{"1+2", 0, -1},
                                           Spelling_s{"--5", 0, -1}, Spelling_s{"+-5", 0, -1},
                                           Spelling_s{"-", 0, -1}, Spelling_s{"+", 0, -1},
                                           Spelling_s{"-inf", 0, 'i'}, Spelling_s{"-nan", 0, 'n'},
                                           // Repeats whose value is missing.
                                           Spelling_s{"3*x", 0, 'x'}, Spelling_s{"3**5", 0, '*'}));

TEST_F(TextNumbers, EndOfFileIsNoReal) {
    openText(" \n ");
    EXPECT_EQ(real(), 0.0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, ' ');
    EXPECT_EQ(real(), 0.0);
    EXPECT_FALSE(isRead);
}

TEST_F(TextNumbers, CharacterThatBeginsNoRealIsPassedOver) {
    openText("1.5 x 2.5");
    EXPECT_EQ(real(), 1.5);
    EXPECT_EQ(real(), 0.0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, ' ');
    EXPECT_EQ(real(), 2.5);
    EXPECT_TRUE(isRead);
}

TEST_F(TextNumbers, TokenOf41CharactersIsCutAt40) {
    openText("0.00000000000000000000000000000000000012345");
    EXPECT_EQ(real(), 1.2e-37);
    EXPECT_EQ(real(), 345.0);
}

TEST_F(TextNumbers, LongTokenIsCutInBulkToo) {
    openText("7 0.00000000000000000000000000000000000012345 8 9\n").isDoublePrecision = true;
    double values[4] = {};
    EXPECT_TRUE(readReals(*file, true, 0, 4, values, nullptr));
    EXPECT_EQ(values[1], 1.2e-37);
    EXPECT_EQ(values[2], 345.0);
    EXPECT_EQ(values[3], 8.0);
}

TEST_F(TextNumbers, IntegersAreReadInEitherSign) {
    openText(" 17, -19\n\t0 -0");
    EXPECT_EQ(integer(), 17);
    EXPECT_EQ(integer(), -19);
    EXPECT_EQ(integer(), 0);
    EXPECT_EQ(integer(), 0);
    EXPECT_TRUE(isRead);
}

TEST_F(TextNumbers, IntegerRefusesPlusThatARealAccepts) {
    openText("+5");
    EXPECT_EQ(integer(), 0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(real(), 5.0);
}

TEST_F(TextNumbers, IntegerStopsAtAPointAndFailsNext) {
    openText("1.5");
    EXPECT_EQ(integer(), 1);
    EXPECT_TRUE(isRead);
    EXPECT_EQ(integer(), 0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, '.');
}

TEST_F(TextNumbers, IntegerThatPasses32BitsWraps) {
    openText("2147483648 -2147483649 4294967301 99999999999999999999999");
    EXPECT_EQ(integer(), std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(integer(), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(integer(), 5);
    EXPECT_EQ(integer(), -159383553); // 10^23 - 1 modulo 2^32
    EXPECT_TRUE(isRead);
}

TEST_F(TextNumbers, MinusIsPassedEvenIfNoDigitFollows) {
    openText("-x");
    EXPECT_EQ(integer(), 0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, 'x');
}

TEST_F(TextNumbers, IntegerAtTheEndOfTheFileFails) {
    openText("");
    EXPECT_EQ(integer(), 0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->lookahead, -1);
}

class RepeatToken : public TextNumbers {};

TEST_F(RepeatToken, DeliversItsValueThatManyTimes) {
    openText("3*7 9");
    for (int time = 0; time < 3; ++time)
        EXPECT_EQ(integer(), 7);
    EXPECT_EQ(integer(), 9);
}

TEST_F(RepeatToken, KeepsTheLineOpenWhileRepeatsRemain) {
    openText("3*7\n");
    integer();
    EXPECT_FALSE(atRecordEnd(*file));
    integer();
    EXPECT_FALSE(atRecordEnd(*file));
    integer();
    EXPECT_TRUE(atRecordEnd(*file));
}

TEST_F(RepeatToken, OfZeroDeliversOnceAndKeepsTheLineOpenForGood) {
    openText("0*5\n");
    EXPECT_EQ(integer(), 5);
    EXPECT_EQ(file->repeatCount, -1);
    EXPECT_FALSE(atRecordEnd(*file));
    rewindPlot3DFile(*file);
    EXPECT_EQ(real(), 5.0);
    EXPECT_EQ(file->repeatCount, -1);
}

TEST_F(RepeatToken, OfOneDeliversOnce) {
    openText("1*5\n");
    EXPECT_EQ(integer(), 5);
    EXPECT_TRUE(atRecordEnd(*file));
}

TEST_F(RepeatToken, DeliversReals) {
    openText("2*1.5D+02 3*0. 4");
    EXPECT_EQ(real() + real(), 300.0);
    EXPECT_EQ(real() + real() + real(), 0.0);
    EXPECT_EQ(real(), 4.0);
}

TEST_F(RepeatToken, RunsAcrossAChangeOfReader) {
    openText("4*2.4 3*7");
    EXPECT_EQ(real(), 2.4);
    EXPECT_EQ(integer(), 2);
    EXPECT_EQ(real(), 2.4);
    EXPECT_EQ(integer(), 2);
    EXPECT_EQ(integer(), 7);
    EXPECT_EQ(real(), 7.0);
}

TEST_F(RepeatToken, IsRoundedWithALittleLessThanAHalf) {
    for (const auto& [value, rounded] : {std::pair{2.5, 2}, {2.502, 3}, {-2.5, -2}, {-2.502, -3}}) {
        openText("").repeatCount = 1;
        file->repeatValue = value;
        EXPECT_EQ(integer(), rounded) << value;
    }
}

TEST_F(RepeatToken, IsHeldInsideTheIntegersWhenRounded) {
    openText("2*1E10 2*-1E10 2*1E999");
    real();
    EXPECT_EQ(integer(), 0x7FFFFFFE);
    real();
    EXPECT_EQ(integer(), -0x7FFFFFFE);
    real();
    EXPECT_EQ(integer(), 0x7FFFFFFE);
}

TEST_F(RepeatToken, CountMayBeSpelledAsAReal) {
    openText("2.999*7. 2.98*8. 9");
    EXPECT_EQ(real(), 7.0);
    EXPECT_EQ(file->repeatCount, 2);
    real();
    real();
    EXPECT_EQ(real(), 8.0);
    EXPECT_EQ(file->repeatCount, 1);
}

TEST_F(RepeatToken, CountPast32BitsIsTheLargestThereIs) {
    openText("1E999*7");
    EXPECT_EQ(real(), 7.0);
    EXPECT_EQ(file->repeatCount, std::numeric_limits<std::int32_t>::max());
    openText("-1E999*7");
    EXPECT_EQ(real(), 7.0);
    EXPECT_EQ(file->repeatCount, std::numeric_limits<std::int32_t>::min());
}

TEST_F(RepeatToken, NegativeCountDeliversOnce) {
    openText("-3*7 9");
    EXPECT_EQ(integer(), 7);
    EXPECT_EQ(file->repeatCount, -4);
    EXPECT_EQ(integer(), 9);
}

TEST_F(RepeatToken, OuterCountStandsInAChain) {
    openText("2*3*7 9");
    EXPECT_EQ(integer(), 7);
    EXPECT_EQ(integer(), 7);
    EXPECT_EQ(integer(), 9);
}

// A chain as long as the file must not be a call as deep as the file.
TEST_F(RepeatToken, ChainMayBeOfAnyLength) {
    std::string chain;
    for (int link = 0; link < 1000000; ++link)
        chain += "2*";
    openText(chain + "7");
    EXPECT_EQ(real(), 7.0);
    EXPECT_EQ(file->repeatCount, 1);
}

TEST_F(RepeatToken, ValueMayStandBehindBlanks) {
    openText("2* 7");
    EXPECT_EQ(integer() + integer(), 14);
}

TEST_F(RepeatToken, WithoutValueFailsAndRepeatsNothing) {
    openText("3*x");
    EXPECT_EQ(integer(), 0);
    EXPECT_FALSE(isRead);
    EXPECT_EQ(file->repeatCount, 0);
}

} // namespace
} // namespace quorvia::quorutildataio
