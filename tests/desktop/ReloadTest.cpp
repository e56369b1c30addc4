// File > Reload for New Steps.
#include <filesystem>

#include <gtest/gtest.h>

#include <QStatusBar>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#ifdef QUORHOST_HAS_VIEW
#include "desktop/ViewFixture.h"
#endif

namespace quorvia::host {
namespace {

template <typename Base>
class Reload : public Base {
protected:
    /// Four time steps of which the last two are still to come.
    void importFirstSteps() {
        this->writeSample({"vortex", "--steps", "4"});
        for (const char* name : {"vortex_t0.50.q", "vortex_t0.75.q"})
            std::filesystem::rename(this->file(name), this->file(name) + ".later");
        this->import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
    }
    void lastStepsCome() {
        for (const char* name : {"vortex_t0.50.q", "vortex_t0.75.q"})
            std::filesystem::rename(this->file(name) + ".later", this->file(name));
    }
    void reload() { this->choose(QStringLiteral("Reload for New Steps")); }
    std::string status() { return this->window().statusBar()->currentMessage().toStdString(); }
    std::size_t zoneCount() { return this->window().tree().dataSet()->zones.size(); }
};

class ReloadTest : public Reload<DesktopTest> {};

TEST_F(ReloadTest, NeedsADataSet) {
    EXPECT_FALSE(action(QStringLiteral("Reload for New Steps")).isEnabled());
    importFirstSteps();
    EXPECT_TRUE(action(QStringLiteral("Reload for New Steps")).isEnabled());
    choose(QStringLiteral("Discard Data Set"));
    EXPECT_FALSE(action(QStringLiteral("Reload for New Steps")).isEnabled());
}

TEST_F(ReloadTest, BringsTheStepsThatHaveComeAndSaysHowMany) {
    importFirstSteps();
    reload();
    EXPECT_EQ(status(), "Reloaded: no new steps");
    lastStepsCome();
    reload();
    EXPECT_EQ(zoneCount(), 4U);
    EXPECT_EQ(window().tree().dataSet()->zones.back().name, "vortex_t0.75.q:1");
    EXPECT_EQ(status(), "Reloaded: 2 new steps, 4 in all");
}

TEST_F(ReloadTest, LeavesOutWhatWasLeftOutAtFirst) {
    writeSample({"vortex", "--steps", "3", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.50.q"});
    reload();
    EXPECT_EQ(zoneCount(), 2U);
}

TEST_F(ReloadTest, ReadsTheSameFilesAnew) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    writeSample({"vortex", "--steps", "1", "--size", "11x5"});
    reload();
    EXPECT_EQ(window().tree().dataSet()->zones.front().i, 11);
}

TEST_F(ReloadTest, RepeatsWhatWasChosenInTheDialog) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), true);
    person().showPage(2);
    person().typeInto(2, QStringLiteral("2"));
    person().clickInDialog(QStringLiteral("OK"));
    choose(QStringLiteral("PLOT3D Loader..."));
    ASSERT_EQ(window().tree().dataSet()->zones.front().i, 4);
    reload();
    EXPECT_EQ(window().tree().dataSet()->zones.front().i, 4);
}

TEST_F(ReloadTest, RepeatsEachOfSeveralImports) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    import({"vortex.x", "vortex_t0.25.q"}, true);
    reload();
    EXPECT_EQ(zoneCount(), 2U);
    EXPECT_EQ(window().session().imports().size(), 2U);
}

TEST_F(ReloadTest, FilesThatAreGoneAreTold) {
    importFirstSteps();
    std::filesystem::remove(file("vortex_t0.25.q"));
    person().answerBox();
    reload();
    EXPECT_EQ(person().boxTexts().size(), 1U);
    EXPECT_EQ(status().rfind("Nothing was imported", 0), 0U) << status();
}

TEST_F(ReloadTest, StandsInTheRecentFilesInPlaceOfTheSetBefore) {
    importFirstSteps();
    lastStepsCome();
    reload();
    const auto* menu = window().findChild<RecentMenu*>(QStringLiteral("recent"));
    EXPECT_TRUE(menu->actions()[0]->text().startsWith(QLatin1String("&1  vortex.x and 4 more")));
    EXPECT_TRUE(menu->actions()[1]->isSeparator());
}

#ifdef QUORHOST_HAS_VIEW
class ReloadedViewTest : public Reload<ViewTest> {};

TEST_F(ReloadedViewTest, KeepsColourTimeCameraAndTicks) {
    importFirstSteps();
    settle();
    choose("Colour", "RHO-V");
    view().timeBar().goBy(1);
    settle();
    view().scene().zoom(1.5);
    const double zoom = view().scene().stage().camera().zoom;
    lastStepsCome();
    reload();
    settle();
    EXPECT_EQ(content().colourName, "RHO-V");
    EXPECT_EQ(content().timeStep, 1U);
    EXPECT_NEAR(view().scene().stage().camera().zoom, zoom, 1e-6);
    tick("Strand 1", false);
    reload();
    settle();
    EXPECT_EQ(treeItem(QStringLiteral("Strand 1"))->checkState(0), Qt::Unchecked);
    EXPECT_EQ(message(), "No zone is ticked in the tree.");
}

TEST_F(ReloadedViewTest, ShowsDataWithoutTheVariableAsAtFirst) {
    writeSample({"vortex", "--steps", "1"});
    import({"vortex.x", "vortex_t0.00.q"});
    settle();
    choose("Colour", "RHO-V");
    view().scene().zoom(1.5);
    writeSample({"cylinder"}, directory().path().string());
    std::filesystem::rename(file("cylinder.x"), file("vortex.x"));
    std::filesystem::rename(file("cylinder.q"), file("vortex_t0.00.q"));
    reload();
    settle();
    EXPECT_TRUE(view().scene().isVisible()) << message();
}
#endif

} // namespace
} // namespace quorvia::host
