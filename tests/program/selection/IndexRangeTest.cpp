#include "selection/IndexRange.h"

#include <gtest/gtest.h>

#include <plot3d/Error.h>

namespace plot3d::program {
namespace {

using Found = std::optional<Range>;

Found along(const char* text, std::int64_t count) {
    return resolved(parseIndexRange(text), count);
}

TEST(IndexRange, CountsFromOneAndIncludesItsEnds) {
    EXPECT_EQ(along("2,5", 7), (Range{1, 4, 1}));
    EXPECT_EQ(along("1,7,3", 7), (Range{0, 6, 3}));
    EXPECT_EQ(along("3", 7), (Range{2, 2, 1}));
}

TEST(IndexRange, IsWholeWhateverItsStepIfThereIsOneIndex) {
    EXPECT_EQ(along(",,2", 1), (Range{0, 0, 1}));
    EXPECT_EQ(along("-5,,3", 1), (Range{0, 0, 1}));
    EXPECT_EQ(along("3,4,2", 7), (Range{2, 2, 1}));
}

TEST(IndexRange, KeepsTheDefaultOfWhatIsLeftOut) {
    EXPECT_EQ(along(",", 7), (Range{0, 6, 1}));
    EXPECT_EQ(along(",,2", 7), (Range{0, 6, 2}));
    EXPECT_EQ(along("3,", 7), (Range{2, 6, 1}));
    EXPECT_EQ(along(",3", 7), (Range{0, 2, 1}));
}

TEST(IndexRange, CountsFromTheEndWithAMinus) {
    EXPECT_EQ(along("-1", 7), (Range{6, 6, 1}));
    EXPECT_EQ(along("-3,-1", 7), (Range{4, 6, 1}));
    EXPECT_EQ(along("2,-2,2", 7), (Range{1, 5, 2}));
}

TEST(IndexRange, IsCutToWhatADirectionHas) {
    EXPECT_EQ(along("2,50", 7), (Range{1, 6, 1}));
    EXPECT_EQ(along("-50,3", 7), (Range{0, 2, 1}));
    EXPECT_EQ(along("8,50", 7), Found());
    EXPECT_EQ(along("-8", 7), Found());
    EXPECT_EQ(along("4,-5", 7), Found());
}

class RefusedRange : public testing::TestWithParam<const char*> {};

TEST_P(RefusedRange, IsNoRange) {
    EXPECT_THROW(parseIndexRange(GetParam()), Error);
}

INSTANTIATE_TEST_SUITE_P(Texts, RefusedRange,
                         testing::Values("", "0", "1,0", "a", "1.5", "1;2", "1,2,0", "1,2,-1",
                                         "1,2,3,4", "5,4", "-1,-2", " 1", "9223372036854775808"));

TEST(Point, HasOneForWhatIsLeftOut) {
    EXPECT_EQ(parsePoint("4"), (std::array<std::int64_t, 3>{4, 1, 1}));
    EXPECT_EQ(parsePoint("4,-1,2"), (std::array<std::int64_t, 3>{4, -1, 2}));
    EXPECT_THROW(parsePoint("4,0,2"), Error);
    EXPECT_THROW(parsePoint("4,,2"), Error);
    EXPECT_THROW(parsePoint("1,2,3,4"), Error);
}

} // namespace
} // namespace plot3d::program
