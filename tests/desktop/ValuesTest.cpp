// Histogram and values of I-blank: what counts, over which zones and times.
#include <filesystem>
#include <numeric>

#include "desktop/ValuesFixture.h"

namespace quorvia::host {
namespace {

class HistogramTest : public ValuesTest {
protected:
    static std::int64_t sumOf(const StatisticsWindow& window) {
        std::int64_t sum = 0;
        for (int row = 0; row < window.table().rowCount(); ++row)
            sum += window.table().item(row, 2)->data(exactRole).toLongLong();
        return sum;
    }
    void holdCountOfFiveBins(HistogramWindow& window) {
        hold(window);
        set<QSpinBox>(window, "Bins", 5);
        ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    }
};
class IBlankTest : public ValuesTest {};

TEST_F(HistogramTest, CountsTheValuesOfAZoneThatCount) {
    importBlanked();
    HistogramWindow& window = openHistogram(1, "F1V1", 2);
    EXPECT_EQ(rowsOf(window), (Rows{{"3", "63.5", "10"}, {"63.5", "124", "12"}}));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Histogram of F1V1, zone 1  blanked.f:1"));
    EXPECT_EQ(window.message(), "22 values from 3 to 124, mean 68.04545, deviation 49.31852. "
                                "Left out: 6 blanked, 1 NaN, 1 infinite.");
}

TEST_F(HistogramTest, CountsOtherZonesAndAllOfThem) {
    importBlanked();
    HistogramWindow& window = openHistogram(1, "F1V1", 1);
    set<QSpinBox>(window, "Zone", 2);
    settle(window);
    EXPECT_EQ(rowsOf(window), (Rows{{"1000", "1011", "4"}}));
    choose(window, "All zones");
    EXPECT_EQ(rowsOf(window), (Rows{{"3", "1011", "26"}}));
}

TEST_F(HistogramTest, CountsOneTimeAndAllTimes) {
    importVortex();
    HistogramWindow& window = openHistogram(0, "RHO", 7);
    const auto points = static_cast<std::int64_t>(values(1, 3).size());
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Histogram of RHO, time 0"));
    EXPECT_EQ(sumOf(window), points);
    set<QSpinBox>(window, "Time step", 3);
    settle(window);
    const std::vector<float> last = values(3, 3);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Histogram of RHO, time 0.5"));
    EXPECT_EQ(window.table().item(0, 0)->data(exactRole).toDouble(), std::ranges::min(last));
    EXPECT_EQ(window.table().item(6, 1)->data(exactRole).toDouble(), std::ranges::max(last));
    choose(window, "All times");
    EXPECT_EQ(sumOf(window), 3 * points);
}

TEST_F(HistogramTest, TellsOneValueInOneBin) {
    importBlanked();
    EXPECT_EQ(rowsOf(openHistogram(2, "IBlank", 20)), (Rows{{"1", "1", "4"}}));
}

TEST_F(HistogramTest, BeginsWithTheVariableThatIsCurrentInTheTree) {
    importVortex();
    window().tree().setCurrentItem(treeItem(QStringLiteral("RHO-V")));
    choose(QStringLiteral("Show Histogram"));
    auto& window = *dynamic_cast<HistogramWindow*>(find("histogram"));
    settle(window);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Histogram of RHO-V, time 0"));
}

TEST_F(HistogramTest, MarksTheBarOfARowAndTheRowOfABar) {
    importBlanked();
    HistogramWindow& window = openHistogram(1, "F1V1", 2);
    HistogramPlot& plot = window.plot();
    const QPoint right(plot.width() * 3 / 4, plot.height() / 2);
    ASSERT_EQ(plot.binAt(right), 1U);
    EXPECT_EQ(plot.textOf(1), QStringLiteral("63.5 to 124: 12 values"));
    QTest::mouseClick(&plot, Qt::LeftButton, {}, right);
    EXPECT_EQ(window.table().currentRow(), 1);
    EXPECT_EQ(plot.marked(), 1U);
    EXPECT_EQ(plot.binAt({1, 1}), std::nullopt);
}

TEST_F(HistogramTest, IsCancelled) {
    importBlanked();
    HistogramWindow& window = openHistogram(1, "F1V1", 2);
    holdCountOfFiveBins(window);
    cancelHeld(window);
    EXPECT_EQ(window.message(), "Cancelled.");
    EXPECT_EQ(rowsOf(window), Rows());
}

TEST_F(HistogramTest, LaterChoiceReplacesTheEarlierOne) {
    importBlanked();
    HistogramWindow& window = openHistogram(1, "F1V1", 2);
    holdCountOfFiveBins(window);
    set<QSpinBox>(window, "Bins", 1);
    letGo();
    settle(window);
    EXPECT_EQ(rowsOf(window), (Rows{{"3", "124", "22"}}));
}

TEST_F(HistogramTest, TellsWhatCantBeRead) {
    importVortex();
    std::filesystem::resize_file(file("vortex_t0.25.q"), 1000);
    HistogramWindow& window = openHistogram(0, "RHO", 7);
    choose(window, "All times");
    EXPECT_NE(window.message().find("\nZone 2 can't be read and is left out: "), std::string::npos)
        << window.message();
    EXPECT_EQ(sumOf(window), static_cast<std::int64_t>(2 * values(1, 3).size()));
}

TEST_F(HistogramTest, ClosesWithItsDataSet) {
    importBlanked();
    holdCountOfFiveBins(openHistogram(1, "F1V1", 2));
    letGo();
    choose(QStringLiteral("Discard Data Set"));
    EXPECT_TRUE(comesTrue([this] { return find("histogram") == nullptr; }));
    EXPECT_FALSE(action(QStringLiteral("Show Histogram")).isEnabled());
}

TEST_F(IBlankTest, TellsHowManyPointsHaveEachValue) {
    importBlanked();
    IBlankWindow& window = openIBlank(1);
    EXPECT_EQ(rowsOf(window), (Rows{{"-2", "1"}, {"0", "6"}, {"1", "23"}}));
    EXPECT_EQ(window.message(), "30 points");
    choose(window, "All zones");
    EXPECT_EQ(rowsOf(window), (Rows{{"-2", "1"}, {"0", "6"}, {"1", "27"}}));
}

TEST_F(IBlankTest, IsNotAskedForWhereThereIsNone) {
    EXPECT_EQ(action(QStringLiteral("Show Values of I-Blank")).toolTip(),
              QStringLiteral("There is no data set."));
    importVortex();
    EXPECT_FALSE(action(QStringLiteral("Show Values of I-Blank")).isEnabled());
    EXPECT_EQ(action(QStringLiteral("Show Values of I-Blank")).toolTip(),
              QStringLiteral("The data set has no I-blank."));
}

} // namespace
} // namespace quorvia::host
