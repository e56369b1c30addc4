#include "console/Words.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace console {
namespace {

TEST(Words, NumbersAreGroupedByThousands) {
    EXPECT_EQ(grouped(0), "0");
    EXPECT_EQ(grouped(999), "999");
    EXPECT_EQ(grouped(940528), "940,528");
    EXPECT_EQ(grouped(-1000), "-1,000");
    EXPECT_EQ(grouped(INT64_MIN), "-9,223,372,036,854,775,808");
}

TEST(Words, CountsHaveTheirNumber) {
    EXPECT_EQ(counted(1, "zone", "zones"), "1 zone");
    EXPECT_EQ(counted(1200, "zone", "zones"), "1,200 zones");
    EXPECT_EQ(counted(1, "byte"), "1 byte");
    EXPECT_EQ(counted(2340, "byte"), "2,340 bytes");
}

TEST(Words, SizesHaveTwoOrThreeDigits) {
    EXPECT_EQ(roughBytes(812), "812 bytes");
    EXPECT_EQ(roughBytes(999.6), "1.0 kB");
    EXPECT_EQ(roughBytes(9060), "9.1 kB");
    EXPECT_EQ(roughBytes(23.4e9), "23 GB");
    EXPECT_EQ(roughBytes(5e18), "5000 PB");
}

TEST(Words, NumbersHaveUpToSevenDigits) {
    EXPECT_EQ(roughNumber(0.1), "0.1");
    EXPECT_EQ(roughNumber(-1.0 / 3), "-0.3333333");
    EXPECT_EQ(roughNumber(12345678), "1.234568e+07");
    EXPECT_EQ(roughNumber(-0.0), "0");
}

TEST(Words, TimesAreRoundedUp) {
    EXPECT_EQ(roughSeconds(0.2), "1 s");
    EXPECT_EQ(roughSeconds(200), "3 min 20 s");
    EXPECT_EQ(roughSeconds(7500), "2 h 5 min");
}

} // namespace
} // namespace console
