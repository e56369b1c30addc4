#include "describe/Statistics.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

FieldStatistics_s describeFloats(const std::vector<float>& values) {
    return describeValues(QuorFieldDataType_Float, values.data(),
                          static_cast<std::int64_t>(values.size()));
}

FieldStatistics_s describeDoubles(const std::vector<double>& values) {
    return describeValues(QuorFieldDataType_Double, values.data(),
                          static_cast<std::int64_t>(values.size()));
}

/// The bytes of `text`, four to an integer.
std::vector<std::int32_t> integersOf(std::string_view text) {
    std::vector<std::int32_t> words(text.size() / 4);
    std::memcpy(words.data(), text.data(), words.size() * 4);
    return words;
}

TEST(Statistics, TellsRangeAndMeanOfFloats) {
    const FieldStatistics_s told = describeFloats({2.5F, -1.5F, 5.0F, 0.0F});
    EXPECT_EQ(-1.5, told.min);
    EXPECT_EQ(5.0, told.max);
    EXPECT_EQ(1.5, told.mean);
}

TEST(Statistics, TellsRangeAndMeanOfIntegers) {
    const std::vector<std::int32_t> iblank = {1, -7, 0};
    const FieldStatistics_s told = describeValues(QuorFieldDataType_Int32, iblank.data(), 3);
    EXPECT_EQ(-7.0, told.min);
    EXPECT_EQ(1.0, told.max);
    EXPECT_EQ(-2.0, told.mean);
}

TEST(Statistics, ChecksumIsTheOneOfZlib) {
    // "quorhost" as two 32-bit integers; the number was computed by another program.
    EXPECT_EQ(0x2f5b732aU, crc32OfIntegers(integersOf("quorhost")));
    EXPECT_EQ(0U, crc32OfIntegers({}));
}

TEST(Statistics, ChecksumTellsTheTypesApart) {
    EXPECT_NE(describeFloats({1, 2, 3}).crc32, describeDoubles({1, 2, 3}).crc32);
}

TEST(Statistics, RangePassesOverNaNsAndMeanDoesNot) {
    const FieldStatistics_s told = describeDoubles({3, std::nan(""), -2});
    EXPECT_EQ(-2, told.min);
    EXPECT_EQ(3, told.max);
    EXPECT_TRUE(std::isnan(told.mean));
}

TEST(Statistics, OnlyNaNsHaveNoRange) {
    const FieldStatistics_s told = describeDoubles({std::nan(""), std::nan("")});
    EXPECT_TRUE(std::isnan(told.min));
    EXPECT_TRUE(std::isnan(told.max));
}

TEST(Statistics, InfinityIsARange) {
    const double infinity = std::numeric_limits<double>::infinity();
    const FieldStatistics_s told = describeDoubles({infinity, infinity});
    EXPECT_EQ(infinity, told.min);
    EXPECT_EQ(infinity, told.mean);
}

TEST(Statistics, NoValuesHaveNoRangeAndNoMean) {
    const FieldStatistics_s told = describeValues(QuorFieldDataType_Float, nullptr, 0);
    EXPECT_TRUE(std::isnan(told.min));
    EXPECT_TRUE(std::isnan(told.mean));
    EXPECT_EQ(0U, told.crc32);
}

TEST(Statistics, MeanOfAMillionEqualValuesIsThatValue) {
    const FieldStatistics_s told = describeDoubles(std::vector<double>(1000003, 0.1));
    EXPECT_NEAR(0.1, told.mean, 1e-15);
}

// ---- Of many values

constexpr std::int64_t many = 5'000'011;

TEST(Statistics, CanBeStoppedAnywhere) {
    const std::vector<float> values(many, 0.5F);
    int asked = 0;
    const auto count = [&asked](int most) { return [&asked, most] { return ++asked <= most; }; };
    const auto describe = [&](int most) {
        asked = 0;
        return describeValuesWhile(count(most), QuorFieldDataType_Float, values.data(), many);
    };
    ASSERT_TRUE(describe(1000).has_value());
    const int questions = asked;
    EXPECT_GE(questions, 13); // 5 for the range, 3 for the mean, 5 for the checksum
    for (int most = 0; most < questions; ++most)
        EXPECT_FALSE(describe(most).has_value()) << most;
}

TEST(Statistics, AreTheSameInPieces) {
    std::vector<float> values(many, 0.5F);
    values[0] = -3.0F;
    values.back() = 7.0F;
    const auto goOn = [] { return true; };
    const FieldStatistics_s told = describeFloats(values);
    EXPECT_EQ(told, describeValuesWhile(goOn, QuorFieldDataType_Float, values.data(), many));
    EXPECT_EQ(told.min, -3.0);
    EXPECT_EQ(told.max, 7.0);
    EXPECT_EQ(told.mean, (0.5 * (many - 2) - 3.0 + 7.0) / static_cast<double>(many));
}

} // namespace
} // namespace quorvia::host
