#include "analysis/statistics/ValueRun.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace plot3d::analysis {
namespace {

template <typename Value>
class ValueRun : public testing::Test {};

using Types = testing::Types<float, double, std::int32_t>;
TYPED_TEST_SUITE(ValueRun, Types);

TYPED_TEST(ValueRun, HasTheExtremesAtAnyPlaceOfAnyLength) {
    for (std::size_t count = 1; count < 40; ++count) {
        for (std::size_t place = 0; place < count; ++place) {
            std::vector<TypeParam> values(count, TypeParam(5));
            values[place] = TypeParam(-7);
            values[(place + 3) % count] += TypeParam(20);
            ValueRun_s<TypeParam> run;
            ASSERT_TRUE(goOver(std::span<const TypeParam>(values), run));
            ASSERT_EQ(run.min, *std::min_element(values.begin(), values.end()));
            ASSERT_EQ(run.max, *std::max_element(values.begin(), values.end()));
        }
    }
}

TYPED_TEST(ValueRun, HasSumAndSquaresOfWholeNumbersToTheLastDigit) {
    std::vector<TypeParam> values;
    for (int number = -50; number <= 50; ++number)
        values.push_back(static_cast<TypeParam>(number + 3));
    ValueRun_s<TypeParam> run;
    ASSERT_TRUE(goOver(std::span<const TypeParam>(values), run));
    EXPECT_EQ(run.moments, (Moments_s{101, 303, 85850}));
    EXPECT_EQ(goOverSlowly(std::span<const TypeParam>(values)).moments.sum, 303);
}

TYPED_TEST(ValueRun, IsTheSameInAnyRegistersToTheLastDigit) {
    for (std::size_t count = 1; count < 200; ++count) {
        std::vector<TypeParam> values;
        for (std::size_t n = 0; n < count; ++n)
            values.push_back(
                static_cast<TypeParam>(1e9 * std::sin(static_cast<double>(n * count))));
        ValueRun_s<TypeParam> wide;
        ValueRun_s<TypeParam> narrow;
        ASSERT_TRUE(goOver(std::span<const TypeParam>(values), wide));
        ASSERT_TRUE(goOver(std::span<const TypeParam>(values), narrow, Registers_e::OfAllMachines));
        ASSERT_EQ(wide.min, narrow.min);
        ASSERT_EQ(wide.max, narrow.max);
        ASSERT_EQ(wide.moments, narrow.moments);
    }
}

TEST(ValueRunOfReals, IsOfNoUseWithOneThatIsNotFinite) {
    for (const float bad : {std::nanf(""), HUGE_VALF, -HUGE_VALF}) {
        for (std::size_t place = 0; place < 19; ++place) {
            std::vector<float> values(19, 1.0F);
            values[place] = bad;
            ValueRun_s<float> run;
            EXPECT_FALSE(goOver(std::span<const float>(values), run)) << bad << " at " << place;
        }
    }
}

TEST(ValueRunOfReals, WhoseSquaresOverflowIsGoneOverSlowly) {
    const std::vector<double> values = {1e300, -1e300, 1e300, -1e300};
    ValueRun_s<double> run;
    EXPECT_FALSE(goOver(std::span<const double>(values), run));
    run = goOverSlowly(std::span<const double>(values));
    EXPECT_EQ(run.moments.mean(), 0);
    EXPECT_NEAR(run.moments.deviation() / 1e300, 1, 1e-15);
}

TEST(Moments, OfTwoSetsAreThoseOfBoth) {
    Moments_s both = {2, 2, 2}; // 0, 2
    both.add({2, 10, 2});       // 4, 6
    EXPECT_EQ(both, (Moments_s{4, 12, 20}));
    both.add({});
    EXPECT_EQ(both, (Moments_s{4, 12, 20}));
    EXPECT_EQ(both.mean(), 3);
    EXPECT_EQ(both.deviation(), std::sqrt(5.0));
}

TEST(Moments, OfNothingAreNotANumber) {
    EXPECT_TRUE(std::isnan(Moments_s().mean()));
    EXPECT_TRUE(std::isnan(Moments_s().deviation()));
}

} // namespace
} // namespace plot3d::analysis
