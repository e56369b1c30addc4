#include "desktop/tree/ZoneGroups.h"

#include <limits>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

DataSetOutcome_s dataSetOf(const std::vector<std::pair<std::int32_t, double>>& zones) {
    DataSetOutcome_s dataSet;
    for (const auto& [strand, time] : zones) {
        ZoneOutcome_s& zone = dataSet.zones.emplace_back();
        zone.strandId = strand;
        zone.solutionTime = time;
    }
    return dataSet;
}

TEST(ZoneGroups, StandByStrandAndThenByTime) {
    const auto groups = groupZones(dataSetOf({{2, 0.5}, {1, 0.25}, {2, 0.25}, {2, 0.5}}));
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].strand, 1);
    ASSERT_EQ(groups[1].times.size(), 2U);
    EXPECT_EQ(groups[1].times[0].time, 0.25);
    EXPECT_EQ(groups[1].times[1].zones, (std::vector<std::size_t>{0, 3}));
}

TEST(ZoneGroups, ZonesOfNoStrandComeLast) {
    const auto groups = groupZones(dataSetOf({{0, 0.0}, {3, 0.0}}));
    ASSERT_EQ(groups.size(), 2U);
    EXPECT_EQ(groups[0].strand, 3);
    EXPECT_EQ(groups[1].strand, 0);
}

TEST(ZoneGroups, TimesThatAreNoNumbersStandTogetherAtTheEnd) {
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    const auto groups = groupZones(dataSetOf({{1, noNumber}, {1, 7.0}, {1, noNumber}}));
    ASSERT_EQ(groups.front().times.size(), 2U);
    EXPECT_EQ(groups.front().times[1].zones, (std::vector<std::size_t>{0, 2}));
}

} // namespace
} // namespace quorvia::host
