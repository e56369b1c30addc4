// The tree of a data set, and the values that it shows once they are fetched.
#include <algorithm>

#include <gtest/gtest.h>

#include "desktop/DesktopFixture.h"
#include "desktop/parts/Texts.h"

namespace quorvia::host {
namespace {

enum Column_e { nameColumn, detailsColumn, typeColumn, minimumColumn, maximumColumn };

class TreeTest : public DesktopTest {
protected:
    void importSeries() {
        writeSample({"vortex", "--steps", "3", "--size", "7x5"});
        import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q", "vortex_t0.50.q"});
    }
    std::string text(const char* item, Column_e column) {
        const QTreeWidgetItem* found = treeItem(QLatin1String(item));
        return found != nullptr ? found->text(column).toStdString() : "(no such item)";
    }
    void open(const char* item) { treeItem(QLatin1String(item))->setExpanded(true); }
    void select(const char* item) {
        window().tree().clearSelection();
        treeItem(QLatin1String(item))->setSelected(true);
    }
    /// The field of an opened zone.
    QTreeWidgetItem& field(const char* zone, int variable) {
        return *treeItem(QLatin1String(zone))->child(variable - 1);
    }
    static QString least(std::int32_t zone, std::int32_t variable) {
        const std::vector<float> all = values(zone, variable);
        return shownNumber(*std::min_element(all.begin(), all.end()));
    }
};

TEST_F(TreeTest, ShowsZonesByStrandAndTime) {
    importSeries();
    EXPECT_EQ(text("Plot3D DataSet", detailsColumn), "3 zones, 6 variables, plot type 2D");
    EXPECT_EQ(text("Strand 1", detailsColumn), "3 zones, times 0 to 0.5");
    const QTreeWidgetItem* zone = treeItem(QStringLiteral("2  vortex_t0.25.q:1"));
    ASSERT_NE(zone, nullptr);
    EXPECT_EQ(zone->text(detailsColumn), QStringLiteral("7 x 5 x 1"));
    EXPECT_EQ(zone->parent()->text(nameColumn), QStringLiteral("Time 0.25"));
}

TEST_F(TreeTest, ShowsTheFieldsOfAnOpenedZone) {
    importSeries();
    open("2  vortex_t0.25.q:1");
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 1).text(nameColumn), QStringLiteral("X"));
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 1).text(detailsColumn),
              QStringLiteral("shared with zone 1"));
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 3).text(detailsColumn), QStringLiteral("deferred"));
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 3).text(minimumColumn), QString());
}

TEST_F(TreeTest, ShowsAuxiliaryData) {
    importSeries();
    EXPECT_EQ(text("Common.DensityVar", detailsColumn), "3");
}

TEST_F(TreeTest, FetchesTheValuesOfASelectedZone) {
    importSeries();
    open("2  vortex_t0.25.q:1");
    select("2  vortex_t0.25.q:1");
    choose(QStringLiteral("Fetch Values of Selection"));
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 3).text(minimumColumn), least(2, 3));
    EXPECT_EQ(text("RHO", detailsColumn), "range of 1 of 3 zones");
}

TEST_F(TreeTest, FetchesAVariableOfEveryZone) {
    importSeries();
    select("RHO");
    choose(QStringLiteral("Fetch Values of Selection"));
    EXPECT_EQ(text("RHO", detailsColumn), "");
    EXPECT_NE(text("RHO", maximumColumn), "");
    EXPECT_EQ(text("E", maximumColumn), "");
}

TEST_F(TreeTest, FetchesEverything) {
    importSeries();
    choose(QStringLiteral("Fetch All Values"));
    for (const char* variable : {"X", "Y", "RHO", "RHO-U", "RHO-V", "E"})
        EXPECT_NE(text(variable, minimumColumn), "") << variable;
    EXPECT_EQ(text("X", minimumColumn), "-5");
    EXPECT_EQ(text("X", maximumColumn), "5");
}

TEST_F(TreeTest, AStrandStandsForItsZones) {
    importSeries();
    select("Strand 1");
    constexpr std::size_t zoneCount = 3;
    constexpr std::size_t variableCount = 6;
    EXPECT_EQ(window().tree().selectedFields().size(), zoneCount * variableCount);
}

TEST_F(TreeTest, ValuesThatAreGoneAreToldAndStopTheFetching) {
    importSeries();
    std::filesystem::remove(file("vortex_t0.25.q"));
    open("2  vortex_t0.25.q:1");
    select("2  vortex_t0.25.q:1");
    person().answerBox();
    choose(QStringLiteral("Fetch Values of Selection"));
    EXPECT_EQ(person().boxTexts().size(), 1U);
    EXPECT_EQ(field("2  vortex_t0.25.q:1", 3).text(detailsColumn), QStringLiteral("failed"));
}

TEST_F(TreeTest, NothingCanBeFetchedWithoutASelection) {
    importSeries();
    EXPECT_FALSE(action(QStringLiteral("Fetch Values of Selection")).isEnabled());
    select("RHO");
    EXPECT_TRUE(action(QStringLiteral("Fetch Values of Selection")).isEnabled());
}

} // namespace
} // namespace quorvia::host
