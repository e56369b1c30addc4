#include "analysis/statistics/Statistics.h"

#include <cmath>

#include <gtest/gtest.h>

#include "analysis/statistics/MadeFields.h"

namespace plot3d::analysis {
namespace {

const Extent size = {101, 103, 109}; // two stretches, each of many blocks

double wave(std::size_t zone, std::int64_t place) {
    return 1.0 / static_cast<double>(place % 997 + 1) + 1e6 + static_cast<double>(zone);
}

double holes(std::size_t, std::int64_t place) {
    return place % 97 == 0 ? NAN : place % 89 == 0 ? INFINITY : static_cast<double>(place % 1013);
}

StatsWishes_s everything(int threads) {
    return {Checksum_e::Yes, {5, 50, 95}, 10, threads};
}

bool isSame(const Statistics_s& one, const Statistics_s& other) {
    return one.summary == other.summary && one.percentiles == other.percentiles &&
           one.histogram == other.histogram;
}

TEST(Statistics, AreTheSameToTheLastBitOnAnyNumberOfThreads) {
    const MadeFields fields(size, {wave, holes});
    const auto alone = statisticsOf(fields, fields.all(1), everything(1));
    const auto together = statisticsOf(fields, fields.all(1), everything(7));
    for (std::size_t variable = 0; variable < 2; ++variable)
        EXPECT_TRUE(isSame(together[variable].whole, alone[variable].whole)) << variable;
}

TEST(Statistics, KeepTheDigitsOfADeviationFarFromZero) {
    const MadeFields fields(size, {[](std::size_t, std::int64_t place) {
                                return 1e9 + static_cast<double>(place % 2);
                            }});
    const auto found = statisticsOf(fields, fields.all(1), {{}, {}, 0, 2});
    EXPECT_NEAR(found[0].whole.summary.moments.deviation(), 0.5, 1e-9);
}

TEST(Statistics, TellAFieldThatCannotBeReadAndGoOnWithTheRest) {
    MadeFields fields({7, 5, 3}, {wave, holes});
    fields.spoil(1, 0);
    const auto found = statisticsOf(fields, fields.all(3), everything(3));
    ASSERT_TRUE(found[0].zones[1].error);
    EXPECT_EQ(found[0].whole.summary.moments.count, 2 * 105);
    EXPECT_FALSE(found[1].zones[1].error);
    EXPECT_EQ(found[1].zones[1].statistics.summary.moments,
              found[1].zones[0].statistics.summary.moments);
}

TEST(Statistics, TellTheFirstByteOfAFieldThatCannotBeRead) {
    MadeFields fields(size, {wave});
    fields.spoil(0, 0);
    const auto found = statisticsOf(fields, fields.all(1), {{}, {}, 0, 4});
    EXPECT_EQ(found[0].zones[0].error->facts().byte, 0);
}

TEST(Statistics, ReadAFieldThatZonesShareOnceAndCountItForEach) {
    MadeFields fields({7, 5, 3}, {wave});
    fields.share(0);
    const auto found = statisticsOf(fields, fields.all(4), {{}, {50}, 0, 1});
    EXPECT_EQ(fields.opened(), 3); // once for the summary, for the percentile of one and of all
    EXPECT_EQ(found[0].whole.summary.moments.count, 4 * 105);
    EXPECT_EQ(found[0].zones[2].statistics.summary.minAt.zone, 2U);
    EXPECT_EQ(found[0].whole.percentiles, found[0].zones[0].statistics.percentiles);
}

double places(std::size_t, std::int64_t place) {
    return static_cast<double>(place);
}

double everyThird(std::size_t, std::int64_t place) {
    return place % 3 == 0 ? 0 : 1;
}

TEST(Statistics, LeaveOutTheBlankedPointsOfEveryBlock) {
    MadeFields fields(size, {places, everyThird});
    fields.makeIntegers(1);
    StatsSelection_s selection = fields.all(1);
    selection.leavesOutBy = 1;
    const auto found = statisticsOf(fields, selection, {{}, {100}, 0, 2});
    const FieldSummary_s& summary = found[0].whole.summary;
    const std::int64_t last = size.count() - 1; // not of every third
    const std::int64_t thirds = last / 3;
    EXPECT_EQ(summary.blanked, thirds + 1);
    EXPECT_EQ(summary.moments.count, last - thirds);
    EXPECT_EQ(summary.moments.sum, last * (last + 1) / 2 - 3 * thirds * (thirds + 1) / 2);
    EXPECT_EQ(summary.min, 1);
    EXPECT_EQ(summary.max, static_cast<double>(last));
    EXPECT_EQ(summary.maxAt.point, (Point_s{size.i - 1, size.j - 1, size.k - 1}));
    EXPECT_EQ(found[0].whole.percentiles, std::vector<double>{static_cast<double>(last)});
    EXPECT_EQ(found[1].whole.summary.table.at(0), thirds + 1);
}

TEST(Statistics, HavePlacesInEveryBlockOfABoxWithStrides) {
    const MadeFields fields(size, {[](std::size_t, std::int64_t place) {
                                return place == 30 + 101 * (64 + 103 * 100)
                                           ? -1.0
                                           : static_cast<double>(place % 7);
                            }});
    StatsSelection_s selection = fields.all(1);
    selection.zones[0].box = {{0, 100, 2}, {1, 102, 3}, {2, 108, 1}};
    const auto found = statisticsOf(fields, selection, {{}, {}, 0, 2});
    EXPECT_EQ(found[0].whole.summary.moments.count, 51 * 34 * 107);
    EXPECT_EQ(found[0].whole.summary.minAt.point, (Point_s{30, 64, 100}));
}

TEST(Statistics, EndWithAStop) {
    const MadeFields fields(size, {wave});
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THROW(statisticsOf(fields, fields.all(1), {{}, {}, 0, 2}, {{}, stop.get_token()}),
                 Error);
}

} // namespace
} // namespace plot3d::analysis
