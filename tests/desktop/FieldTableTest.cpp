// A field's values as a table, of which no more is read than is on the screen.
#include <filesystem>

#include <gtest/gtest.h>

#include <QSpinBox>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#include "desktop/parts/Texts.h"
#include "desktop/values/FieldTableWindow.h"

namespace quorvia::host {
namespace {

constexpr std::int32_t density = 3; // of the variables, from 1

class FieldTableTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        openWindow(linkedIn);
    }
    void importVortex(const std::string& size) {
        writeSample({"vortex", "--steps", "1", "--size", size});
        import({"vortex.x", "vortex_t0.00.q"});
    }
    void selectDensity() {
        treeItem(QStringLiteral("1  vortex_t0.00.q:1"))->setExpanded(true);
        QTreeWidgetItem* field =
            treeItem(QStringLiteral("1  vortex_t0.00.q:1"))->child(density - 1);
        window().tree().setCurrentItem(field);
    }
    /// As it stands once all that is on the screen was read.
    FieldTableWindow& openTable() {
        selectDensity();
        choose(QStringLiteral("Show Table of Field"));
        EXPECT_TRUE(comesTrue([this] { return find() != nullptr && find()->isVisible(); }));
        EXPECT_TRUE(comesTrue([this] { return find()->table().readCount() > 0; }));
        settle(*find());
        return *find();
    }
    FieldTableWindow* find() {
        return static_cast<FieldTableWindow*>(
            window().findChild<QDialog*>(QStringLiteral("fieldTable")));
    }
    static void settle(FieldTableWindow& window) {
        EXPECT_TRUE(comesTrue([&window] { return !window.table().isReading(); }));
    }
    static std::string cell(FieldTableWindow& window, int row, int column) {
        return window.table()
            .data(window.table().index(row, column), Qt::DisplayRole)
            .toString()
            .toStdString();
    }

private:
    inline static const std::string linkedIn;
};

TEST_F(FieldTableTest, ShowsEveryValueAtItsPlace) {
    importVortex("7x5");
    FieldTableWindow& window = openTable();
    const std::vector<float> expected = values(1, density);
    for (int j = 0; j < 5; ++j)
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(cell(window, j, i),
                      shownNumber(expected[static_cast<std::size_t>(i + 7 * j)]).toStdString());
}

TEST_F(FieldTableTest, ReadsNoMoreThanIsOnTheScreen) {
    importVortex("1009x503");
    FieldTableWindow& window = openTable();
    EXPECT_GT(window.table().readCount(), 0);
    EXPECT_LT(window.table().readCount(), 1009 * 503 / 50);
    const std::vector<float> expected = values(1, density);
    EXPECT_EQ(cell(window, 3, 2), shownNumber(expected[3 * 1009 + 2]).toStdString());
    EXPECT_EQ(cell(window, 502, 1008), "");
    settle(window);
    EXPECT_EQ(cell(window, 502, 1008), shownNumber(expected.back()).toStdString());
}

TEST_F(FieldTableTest, GoesFromPlaneToPlane) {
    writeSample({"cylinder"});
    import({"cylinder.x", "cylinder.q"});
    const ZoneOutcome_s zone = window().tree().dataSet()->zones.front();
    ASSERT_GT(zone.k, 1);
    treeItem(QStringLiteral("1  ") + shown(zone.name))->setExpanded(true);
    window().tree().setCurrentItem(
        treeItem(QStringLiteral("1  ") + shown(zone.name))->child(density - 1));
    choose(QStringLiteral("Show Table of Field"));
    ASSERT_NE(find(), nullptr);
    find()->findChild<QSpinBox*>()->setValue(2);
    cell(*find(), 1, 0);
    settle(*find());
    const auto place = static_cast<std::size_t>(zone.i * (1 + zone.j));
    EXPECT_EQ(cell(*find(), 1, 0), shownNumber(values(1, density)[place]).toStdString());
}

TEST_F(FieldTableTest, SaysWhyValuesAreMissing) {
    importVortex("1009x503");
    FieldTableWindow& window = openTable();
    std::filesystem::resize_file(file("vortex_t0.00.q"), 100'000);
    cell(window, 502, 1008);
    settle(window);
    EXPECT_NE(window.table().failure(), "");
    EXPECT_EQ(cell(window, 502, 1008), "");
}

TEST_F(FieldTableTest, IsOfOneFieldAndSaysSo) {
    importVortex("7x5");
    window().tree().setCurrentItem(treeItem(QStringLiteral("1  vortex_t0.00.q:1")));
    EXPECT_FALSE(action(QStringLiteral("Show Table of Field")).isEnabled());
    EXPECT_EQ(action(QStringLiteral("Show Table of Field")).toolTip(),
              QStringLiteral("Select one field of a zone first."));
    selectDensity();
    EXPECT_TRUE(action(QStringLiteral("Show Table of Field")).isEnabled());
}

TEST_F(FieldTableTest, ClosesWithItsDataSet) {
    importVortex("7x5");
    openTable();
    choose(QStringLiteral("Discard Data Set"));
    EXPECT_TRUE(comesTrue([this] { return find() == nullptr; }));
}

} // namespace
} // namespace quorvia::host
