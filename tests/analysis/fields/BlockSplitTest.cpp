#include "analysis/fields/BlockSplit.h"

#include <gtest/gtest.h>

namespace plot3d::analysis {
namespace {

/// The points of boxes in their order.
std::vector<Point_s> pointsOf(const std::vector<Box>& boxes) {
    std::vector<Point_s> points;
    for (const Box& box : boxes)
        for (std::int64_t place = 0; place < box.count(); ++place)
            points.push_back(pointAt(box, place));
    return points;
}

std::int64_t largestOf(const std::vector<Box>& boxes) {
    std::int64_t largest = 0;
    for (const Box& box : boxes)
        largest = std::max(largest, box.count());
    return largest;
}

const Box box = {{1, 13, 2}, {0, 4, 1}, {2, 11, 3}}; // 7 x 5 x 4 points

TEST(BlockSplit, CountsPointsFromTheCornerOfTheBoxWithIFastest) {
    EXPECT_EQ(pointAt(box, 0), (Point_s{1, 0, 2}));
    EXPECT_EQ(pointAt(box, 6), (Point_s{13, 0, 2}));
    EXPECT_EQ(pointAt(box, 7), (Point_s{1, 1, 2}));
    EXPECT_EQ(pointAt(box, 139), (Point_s{13, 4, 11}));
}

class SplitInto : public testing::TestWithParam<std::int64_t> {};

TEST_P(SplitInto, HasEachPointOnceInTheOrderOfTheBox) {
    EXPECT_EQ(pointsOf(blocksOf(box, GetParam())), pointsOf({box}));
    EXPECT_LE(largestOf(blocksOf(box, GetParam())), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Points, SplitInto,
                         testing::Values(1, 2, 6, 7, 8, 13, 14, 34, 35, 36, 70, 139, 140, 1000));

TEST(BlockSplit, TakesWholePlanesWhereTheyFit) {
    EXPECT_EQ(blocksOf(box, 70).size(), 2U);
    EXPECT_EQ(blocksOf(box, 1000), std::vector<Box>{box});
}

TEST(BlockSplit, HasNothingOfABoxWithoutPoints) {
    EXPECT_TRUE(blocksOf({{3, 2, 1}, {0, 1, 1}, {0, 1, 1}}, 10).empty());
}

TEST(BlockSplit, GoesBeyond32Bits) {
    const std::int64_t many = std::int64_t{5} << 32;
    const Box line = {{0, many - 1, 1}, {0, 0, 1}, {0, 1, 1}};
    EXPECT_EQ(pointAt(line, many + 7), (Point_s{7, 0, 1}));
    EXPECT_EQ(blocksOf(line, many / 4).size(), 8U);
}

} // namespace
} // namespace plot3d::analysis
