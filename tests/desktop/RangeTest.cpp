// The range of the colours: what it is taken from, and what is typed.
#include <algorithm>

#include <gtest/gtest.h>

#include <QLineEdit>

#include "desktop/BlankedFiles.h"
#include "desktop/ViewFixture.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

using plot3d::scene::Range_s;

class RangeTest : public ViewTest {
protected:
    Range_s rangeOf(std::int32_t zone) {
        const auto& names = window().tree().dataSet()->variables;
        const auto density = std::find(names.begin(), names.end(), "RHO") - names.begin() + 1;
        const std::vector<float> all = values(zone, static_cast<std::int32_t>(density));
        const auto [least, most] = std::minmax_element(all.begin(), all.end());
        return {*least, *most};
    }
    Range_s rangeOf(std::int32_t first, std::int32_t last) {
        Range_s range = rangeOf(first);
        for (std::int32_t zone = first + 1; zone <= last; ++zone) {
            range.least = std::min(range.least, rangeOf(zone).least);
            range.most = std::max(range.most, rangeOf(zone).most);
        }
        return range;
    }
    void markZone(std::size_t number) {
        window().tree().markZone(number);
        settle();
    }
    std::string chosen() { return part<QComboBox>("Range").currentText().toStdString(); }
    std::vector<std::string> choices() {
        std::vector<std::string> texts;
        for (int place = 0; place < part<QComboBox>("Range").count(); ++place)
            texts.push_back(part<QComboBox>("Range").itemText(place).toStdString());
        return texts;
    }
    void type(const char* end, const char* text) {
        auto& field = part<QLineEdit>(end);
        field.setFocus();
        field.selectAll();
        QTest::keyClicks(&field, QLatin1String(text));
        QTest::keyClick(&field, Qt::Key_Return);
        settle();
    }
    std::string end(const char* name) { return part<QLineEdit>(name).text().toStdString(); }
};

TEST_F(RangeTest, IsThatOfThePointsDrawnAtFirst) {
    importVortex();
    EXPECT_EQ(chosen(), "Points drawn");
    EXPECT_EQ(content().range, rangeOf(1));
    EXPECT_EQ(end("Minimum"), shownNumber(rangeOf(1).least).toStdString());
    EXPECT_EQ(end("Maximum"), shownNumber(rangeOf(1).most).toStdString());
}

TEST_F(RangeTest, IsThatOfTheZoneMarkedInTheTree) {
    importVortex();
    markZone(2);
    choose("Range", "Zone 2");
    EXPECT_EQ(content().range, rangeOf(2));
    EXPECT_NE(content().range, rangeOf(1));
    EXPECT_EQ(content().timeStep, 0U);
}

TEST_F(RangeTest, StaysThatOfItsZoneUntilAnotherOneIsChosen) {
    importVortex();
    choose("Range", "Zone 1");
    markZone(3);
    EXPECT_EQ(content().range, rangeOf(1));
    EXPECT_EQ(chosen(), "Zone 1");
    EXPECT_EQ(choices(),
              (std::vector<std::string>{"Points drawn", "All points, this time",
                                        "All points, all times", "Zone 1", "Zone 3", "Fixed"}));
    choose("Range", "Zone 3");
    EXPECT_EQ(content().range, rangeOf(3));
}

TEST_F(RangeTest, OfAllTimesIsTheSameAtEachOfThem) {
    importVortex();
    choose("Range", "All points, all times");
    EXPECT_EQ(content().range, rangeOf(1, 3));
    view().timeBar().goBy(1);
    settle();
    EXPECT_EQ(content().timeStep, 1U);
    EXPECT_EQ(content().range, rangeOf(1, 3));
}

TEST_F(RangeTest, OfAllPointsHasThoseBehindThePlane) {
    importCylinder();
    choose("Surfaces", "J plane");
    part<QSlider>("Plane").setValue(7);
    settle();
    EXPECT_NE(content().range, rangeOf(1, 2));
    choose("Range", "All points");
    EXPECT_EQ(content().range, rangeOf(1, 2));
}

TEST_F(RangeTest, LeavesOutWhatIsBlankedOrNoNumber) {
    import(writeBlankedFiles(directory()));
    settle();
    choose("Colour", "F1V1");
    choose("Range", "Zone 1");
    EXPECT_EQ(content().range, (Range_s{3, 124}));
    choose("Range", "All points");
    EXPECT_EQ(content().range, (Range_s{3, 1011}));
}

TEST_F(RangeTest, ThatIsTypedStaysThroughTimesAndComesBackWithItsVariable) {
    importVortex();
    type("Minimum", "-2.5");
    type("Maximum", "3,25");
    EXPECT_EQ(chosen(), "Fixed");
    EXPECT_EQ(content().range, (Range_s{-2.5, 3.25}));
    view().timeBar().goBy(1);
    settle();
    EXPECT_EQ(content().range, (Range_s{-2.5, 3.25}));
    clickInTree("E");
    EXPECT_EQ(chosen(), "Points drawn");
    clickInTree("RHO");
    EXPECT_EQ(content().range, (Range_s{-2.5, 3.25}));
    choose("Range", "Points drawn");
    EXPECT_EQ(content().range, rangeOf(2));
}

TEST_F(RangeTest, KeepsAllDigitsOfTheEndThatNobodyTypedAt) {
    importVortex();
    type("Maximum", "7");
    EXPECT_EQ(content().range, (Range_s{rangeOf(1).least, 7}));
}

TEST_F(RangeTest, IsRefusedWithTheReason) {
    importVortex();
    const Range_s before = content().range;
    type("Minimum", "much");
    EXPECT_EQ(pointText(), "\"much\" is no number.");
    type("Minimum", "50");
    EXPECT_EQ(pointText(), "The minimum must lie below the maximum.");
    EXPECT_EQ(content().range, before);
    EXPECT_EQ(end("Minimum"), "50");
    type("Maximum", "60");
    EXPECT_EQ(content().range, (Range_s{50, 60}));
}

TEST_F(RangeTest, CancelledLeavesThePictureAsItWas) {
    importVortex();
    holdPreparing();
    QTest::keyClick(&part<QComboBox>("Range"), Qt::Key_Down);
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    view().preparing().cancel();
    letGo();
    settle();
    EXPECT_EQ(chosen(), "Points drawn");
    EXPECT_EQ(content().view.rangeOver, plot3d::scene::RangeOver_e::Shown);
}

TEST_F(RangeTest, SecondChoiceReplacesTheFirst) {
    importVortex();
    holdPreparing();
    QTest::keyClick(&part<QComboBox>("Range"), Qt::Key_Down);
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    QTest::keyClick(&part<QComboBox>("Range"), Qt::Key_Down);
    letGo();
    settle();
    EXPECT_EQ(chosen(), "All points, all times");
    EXPECT_EQ(content().range, rangeOf(1, 3));
}

TEST_F(RangeTest, OfAnotherDataSetBeginsAnew) {
    importVortex();
    type("Maximum", "7");
    importCylinder();
    EXPECT_EQ(chosen(), "Points drawn");
    EXPECT_EQ(choices(),
              (std::vector<std::string>{"Points drawn", "All points", "Zone 1", "Fixed"}));
}

} // namespace
} // namespace quorvia::host
