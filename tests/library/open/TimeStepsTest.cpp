#include "open/TimeSteps.h"

#include <limits>

#include <gtest/gtest.h>

namespace plot3dlib {
namespace {

plot3d::Zone zoneOf(double time, std::int32_t strand) {
    plot3d::Zone zone;
    zone.time = time;
    zone.strand = strand;
    return zone;
}

using Zones = std::vector<std::size_t>;

TEST(TimeSteps, ComeInTheOrderOfTime) {
    const auto steps = timeStepsOf({zoneOf(2.0, 1), zoneOf(1.0, 1), zoneOf(2.0, 2)});
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].time, 1.0);
    EXPECT_EQ(steps[0].zones, Zones({1}));
    EXPECT_EQ(steps[1].zones, Zones({0, 2}));
}

TEST(TimeSteps, HaveEveryZoneWithoutAStrand) {
    const auto steps = timeStepsOf({zoneOf(1.0, 1), zoneOf(7.0, 0), zoneOf(2.0, 1)});
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].zones, Zones({0, 1}));
    EXPECT_EQ(steps[1].zones, Zones({1, 2}));
}

TEST(TimeSteps, AreOneWhereNoZoneHasAStrand) {
    const auto steps = timeStepsOf({zoneOf(3.5, 0), zoneOf(4.5, 0)});
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_EQ(steps[0].time, 3.5);
    EXPECT_EQ(steps[0].zones, Zones({0, 1}));
}

TEST(TimeSteps, AreNoneWithoutZones) {
    EXPECT_TRUE(timeStepsOf({}).empty());
}

TEST(TimeSteps, TakeWhatIsNoNumberForATimeLikeOthers) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto steps = timeStepsOf({zoneOf(nan, 1), zoneOf(1.0, 1), zoneOf(nan, 2)});
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_EQ(steps[0].zones, Zones({1}));
    EXPECT_EQ(steps[1].zones, Zones({0, 2}));
}

TEST(TimeSteps, TakeBothZerosForOneTime) {
    EXPECT_EQ(timeStepsOf({zoneOf(0.0, 1), zoneOf(-0.0, 1)}).size(), 1u);
}

} // namespace
} // namespace plot3dlib
