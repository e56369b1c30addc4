#include "analysis/statistics/Percentiles.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "analysis/statistics/Histogram.h"

namespace plot3d::analysis {
namespace {

using Numbers = std::vector<double>;

const Numbers asked = {0, 1, 12.5, 25, 50, 75, 99.9, 100};

/// Sorted, and on the line between neighbours.
Numbers plainly(Numbers values) {
    std::sort(values.begin(), values.end());
    Numbers found;
    for (const double percentile : asked) {
        const double place = static_cast<double>(values.size() - 1) * (percentile / 100);
        const auto lower = static_cast<std::size_t>(place);
        const auto upper = std::min(lower + 1, values.size() - 1);
        found.push_back(
            std::lerp(values[lower], values[upper], place - static_cast<double>(lower)));
    }
    return found;
}

/// With room for a few values only, in turns on three workers.
Numbers inLittleRoom(const Numbers& values, std::int64_t heldValues) {
    constexpr std::size_t workers = 3;
    const auto goOver = [&](const TakeValues& take) {
        for (std::size_t start = 0; start < values.size(); start += 7)
            take(std::span(values).subspan(start, std::min<std::size_t>(7, values.size() - start)),
                 start % workers);
    };
    return percentilesOf(static_cast<std::int64_t>(values.size()), asked, workers, goOver,
                         {heldValues});
}

class Percentiles : public testing::TestWithParam<std::int64_t> {
protected:
    void expectPlain(const Numbers& values) const {
        EXPECT_EQ(inLittleRoom(values, GetParam()), plainly(values));
    }
};

TEST_P(Percentiles, OfRandomValuesAreThoseOfTheSortedOnes) {
    std::mt19937_64 random(20);
    std::normal_distribution<double> normal(0.98, 0.02);
    Numbers values;
    for (int count = 0; count < 3000; ++count)
        values.push_back(normal(random));
    expectPlain(values);
}

TEST_P(Percentiles, OfValuesOfAllSizesAndSigns) {
    std::mt19937_64 random(21);
    Numbers values = {0.0, -0.0, 5e-324, -5e-324, 1.7e308, -1.7e308};
    for (int count = 0; count < 1000; ++count)
        values.push_back(std::ldexp(static_cast<double>(random()) - 9e18,
                                    static_cast<int>(random() % 1500) - 1000));
    expectPlain(values);
}

TEST_P(Percentiles, OfNeighboursInTheLastBit) {
    Numbers values = {1};
    for (int count = 0; count < 500; ++count)
        values.push_back(std::nextafter(values.back(), 2));
    expectPlain(values);
}

TEST_P(Percentiles, OfOneValueAndOfOneThatRepeats) {
    expectPlain({-3});
    expectPlain(Numbers(1000, -3.25));
}

INSTANTIATE_TEST_SUITE_P(HeldValues, Percentiles, testing::Values(1, 16, 500, 1000000));

TEST(NoPercentiles, AreNotANumber) {
    for (const double value : inLittleRoom({}, 10))
        EXPECT_TRUE(std::isnan(value));
}

TEST(Histogram, HasValuesOfAnEdgeInTheUpperBinAndTheMaximumInTheLast) {
    Histogram histogram(0, 4, 4);
    histogram.add(Numbers{0, 0.5, 1, 1.999, 2, 3, 4, 4});
    EXPECT_EQ(histogram.counts(), (std::vector<std::int64_t>{2, 2, 1, 3}));
}

TEST(Histogram, AgreesWithItsEdges) {
    const double min = -0.1;
    const double max = 0.7;
    constexpr std::size_t bins = 7;
    for (std::size_t bin = 0; bin < bins; ++bin) {
        Histogram histogram(min, max, bins);
        const double edge = binEdge(min, max, bins, bin);
        histogram.add(Numbers{edge, std::nextafter(binEdge(min, max, bins, bin + 1), min)});
        EXPECT_EQ(histogram.counts()[bin], 2) << bin;
    }
}

TEST(Histogram, OfOneValueHasItInTheFirstBin) {
    Histogram histogram(2, 2, 3);
    histogram.add(Numbers{2, 2});
    EXPECT_EQ(histogram.counts(), (std::vector<std::int64_t>{2, 0, 0}));
}

TEST(Histogram, SpansAllReals) {
    Histogram histogram(-1.7e308, 1.7e308, 2);
    histogram.add(Numbers{-1.7e308, -1, 0, 1, 1.7e308});
    EXPECT_EQ(histogram.counts(), (std::vector<std::int64_t>{2, 3}));
}

} // namespace
} // namespace plot3d::analysis
