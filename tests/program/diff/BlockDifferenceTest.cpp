#include "diff/BlockDifference.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace plot3d::program {
namespace {

template <typename First, typename Second>
Difference_s difference(const std::vector<First>& first, const std::vector<Second>& second,
                        const Tolerance_s& tolerance = {}) {
    const Box line = {
        {2, 2 + 2 * static_cast<std::int64_t>(first.size() - 1), 2}, {3, 3, 1}, {4, 4, 1}};
    return differenceOf(std::span<const First>(first), std::span<const Second>(second), tolerance,
                        7, line);
}

using Reals = std::vector<double>;
using Floats = std::vector<float>;
using Integers = std::vector<std::int32_t>;

TEST(BlockDifference, IsNoneBetweenTheSameValues) {
    EXPECT_EQ(difference(Reals{1, NAN, INFINITY, 0.0}, Reals{1, -NAN, INFINITY, -0.0}),
              (Difference_s{.compared = 4,
                            .absoluteAt = {0, 0, 7, {2, 3, 4}},
                            .relativeAt = {0, 0, 7, {2, 3, 4}},
                            .unlikeAt = {0, 0, 7, {2, 3, 4}}}));
}

TEST(BlockDifference, HasTheFirstPlaceOfTheLargest) {
    const Difference_s found = difference(Reals{1, 100, 4, 8}, Reals{1, 104, 2, 4});
    EXPECT_EQ(found.different, 3);
    EXPECT_EQ(found.absolute, 4);
    EXPECT_EQ(found.absoluteAt, (Pair_s{100, 104, 7, {4, 3, 4}}));
    EXPECT_EQ(found.relative, 0.5);
    EXPECT_EQ(found.relativeAt, (Pair_s{4, 2, 7, {6, 3, 4}}));
}

TEST(BlockDifference, CountsWhatIsFiniteInOneOnly) {
    const Difference_s found =
        difference(Reals{1, NAN, INFINITY, INFINITY}, Reals{NAN, 1, -INFINITY, INFINITY});
    EXPECT_EQ(found.unlike, 3);
    EXPECT_EQ(found.different, 3);
    EXPECT_EQ(found.absolute, 0);
    EXPECT_EQ(found.unlikeAt.point, (analysis::Point_s{2, 3, 4}));
}

TEST(BlockDifference, IsOfNoAccountWithinEitherTolerance) {
    EXPECT_EQ(difference(Reals{1, 100}, Reals{1.5, 101}).different, 2);
    EXPECT_EQ(difference(Reals{1, 100}, Reals{1.5, 101}, {0.5, 0}).different, 1);
    EXPECT_EQ(difference(Reals{1, 100}, Reals{1.5, 101}, {0, 0.01}).different, 1);
    EXPECT_EQ(difference(Reals{1, 100}, Reals{1.5, 101}, {0.5, 0.01}).different, 0);
    EXPECT_EQ(difference(Reals{1, 100}, Reals{1.5, 101}, {0.5, 0.01}).absolute, 1);
}

TEST(BlockDifference, RoundsToTheTypeOfFewerDigits) {
    EXPECT_EQ(difference(Floats{0.1F}, Reals{0.1}).different, 0);
    EXPECT_EQ(difference(Reals{0.1}, Floats{0.1F}).different, 0);
    EXPECT_EQ(difference(Reals{0.1}, Reals{static_cast<double>(0.1F)}).different, 1);
    EXPECT_EQ(difference(Integers{16777217}, Reals{16777217}).different, 0);
    EXPECT_EQ(difference(Reals{16777217.5}, Integers{16777217}).different, 1);
    EXPECT_EQ(difference(Integers{1}, Floats{2}).absolute, 1);
}

TEST(BlockDifference, OfValuesTooLargeToBeSubtractedIsStillRelative) {
    EXPECT_EQ(difference(Reals{1.7e308}, Reals{-1.7e308}).relative, 2);
    EXPECT_EQ(difference(Reals{5e-324}, Reals{0.0}).relative, 1);
}

TEST(BlockDifference, OfTwoBlocksKeepsTheFirstOfTheSameSize) {
    Difference_s both = difference(Reals{1, 2}, Reals{1, 3});
    Difference_s later = difference(Reals{2, 2}, Reals{1, 2});
    later.absoluteAt.zone = 8;
    both.add(later);
    EXPECT_EQ(both.compared, 4);
    EXPECT_EQ(both.different, 2);
    EXPECT_EQ(both.absoluteAt.zone, 7U);
    EXPECT_EQ(both.relative, 0.5);
}

} // namespace
} // namespace plot3d::program
