#include "dataset/zones/StrandMap.h"

#include <gtest/gtest.h>

using namespace quorvia::quorutildataio;

namespace {

using Strands = std::vector<std::int32_t>;

class StrandMap : public ::testing::Test {
protected:
    Strands timeStep(const std::vector<Plot3DGridDims_s>& grids) {
        map.beginFileSet();
        Strands strands;
        for (const Plot3DGridDims_s& dims : grids)
            strands.push_back(map.strandForGrid(dims, "key").strand);
        return strands;
    }
    static constexpr Plot3DGridDims_s a = {2, 3, 5};
    static constexpr Plot3DGridDims_s b = {2, 3, 7};
    Plot3DStrandMap_s map;
};

TEST_F(StrandMap, ContinuesGridsByTheirDimensions) {
    EXPECT_EQ(timeStep({a, b}), (Strands{1, 2}));
    EXPECT_EQ(timeStep({b, a}), (Strands{2, 1}));
}

TEST_F(StrandMap, TellsGridsOfEqualDimensionsApartByTheirOrder) {
    EXPECT_EQ(timeStep({a, a}), (Strands{1, 2}));
    EXPECT_EQ(timeStep({a, a}), (Strands{1, 2}));
    EXPECT_EQ(timeStep({a}), Strands{1});
    EXPECT_EQ(timeStep({a, a}), (Strands{1, 3}));
}

TEST_F(StrandMap, ForgetsDimensionsThatAStepDoesWithout) {
    timeStep({a, b});
    timeStep({b});
    EXPECT_EQ(timeStep({a, b}), (Strands{3, 2}));
}

TEST_F(StrandMap, NumbersOnFromItsStart) {
    map.nextStrand = 8;
    EXPECT_EQ(timeStep({b, a}), (Strands{8, 9}));
}

TEST_F(StrandMap, GivesEveryZoneANewStrandIfToldSo) {
    map.newStrandEachStep = true;
    EXPECT_EQ(timeStep({a, b}), (Strands{1, 2}));
    EXPECT_EQ(timeStep({a, b}), (Strands{3, 4}));
}

TEST_F(StrandMap, KeepsTheKeyOfTheZoneThatOpenedTheStrand) {
    map.beginFileSet();
    EXPECT_EQ(map.strandForGrid(a, "4").zoneKey, "4");
    map.beginFileSet();
    EXPECT_EQ(map.strandForGrid(a, "9").zoneKey, "4");
}

TEST(GridDimsOrder, IsByIThenJThenK) {
    const Plot3DGridDimsLess less;
    EXPECT_TRUE(less({1, 9, 9}, {2, 1, 1}));
    EXPECT_TRUE(less({2, 1, 9}, {2, 3, 1}));
    EXPECT_TRUE(less({2, 3, 4}, {2, 3, 5}));
    EXPECT_FALSE(less({2, 3, 5}, {2, 3, 5}));
}

} // namespace
