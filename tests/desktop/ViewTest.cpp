// The picture beside the tree: what it shows, and what it tells of what is clicked at.
#include <gtest/gtest.h>

#include <QImage>
#include <QPushButton>

#include "desktop/ViewFixture.h"
#include "desktop/parts/Texts.h"
#include "support/TextPattern.h"

namespace quorvia::host {
namespace {

TEST_F(ViewTest, SaysWhatIsMissingWithoutADataSet) {
    EXPECT_EQ(view().content(), nullptr);
    EXPECT_FALSE(part<QComboBox>("Colour").isEnabled());
}

TEST_F(ViewTest, ShowsTheFirstTimeOfWhatWasImported) {
    importVortex();
    ASSERT_NE(view().content(), nullptr);
    EXPECT_EQ(content().parts.size(), 1U);
    EXPECT_EQ(content().colourName, "RHO");
    EXPECT_EQ(content().timeStep, 0U);
    EXPECT_TRUE(view().scene().isVisible());
    EXPECT_TRUE(view().timeBar().isVisible());
}

TEST_F(ViewTest, ClickOnAVariableOfTheTreeColoursByIt) {
    importVortex();
    clickInTree("E");
    EXPECT_EQ(content().colourName, "E");
    EXPECT_EQ(part<QComboBox>("Colour").currentText(), QStringLiteral("E"));
}

TEST_F(ViewTest, VariableIsChosenAboveThePicture) {
    importVortex();
    choose("Colour", "RHO-V");
    EXPECT_EQ(content().colourName, "RHO-V");
}

TEST_F(ViewTest, ClickTellsTheValuesOfThePointAndMarksItsZone) {
    importVortex();
    view().timeBar().goBy(1);
    settle();
    clickAt(0.4, 0.5);
    const testsupport::Match told =
        testsupport::TextPattern("Zone 2 .*\ni (\\d+)  j (\\d+)  k 1\n([^]*)")
            .firstMatch(pointText());
    ASSERT_FALSE(told.empty()) << pointText();
    const std::size_t point = std::stoul(told[1]) - 1 + 41 * (std::stoul(told[2]) - 1);
    std::string expected;
    const char* const names[] = {"X", "Y", "RHO", "RHO-U", "RHO-V", "E"};
    for (std::int32_t variable = 1; variable <= 6; ++variable)
        expected += (variable == 1 ? "" : "   ") + std::string(names[variable - 1]) + " = " +
                    shownNumber(values(2, variable).at(point)).toStdString();
    EXPECT_EQ(told[3], expected);
    EXPECT_EQ(window().tree().currentItem()->text(0), QStringLiteral("2  vortex_t0.25.q:1"));
}

TEST_F(ViewTest, ClickBesideTheDataTellsNothing) {
    importVortex();
    clickAt(0.4, 0.5);
    clickAt(0.01, 0.5);
    EXPECT_EQ(pointText(), "");
}

TEST_F(ViewTest, PlaysTheTimeStepsInACircle) {
    importVortex();
    QTest::mouseClick(view().findChild<QToolButton*>(QStringLiteral("play")), Qt::LeftButton);
    for (const std::size_t step : {1U, 2U, 0U})
        ASSERT_TRUE(comesTrue([this, step] { return content().timeStep == step; })) << step;
    view().timeBar().play(false);
    settle();
}

TEST_F(ViewTest, KeysGoThroughTheTimes) {
    importVortex();
    window().activateWindow();
    ASSERT_TRUE(comesToTheFront(window()));
    view().scene().setFocus();
    QTest::keyClick(&view().scene(), Qt::Key_PageDown);
    settle();
    EXPECT_EQ(content().timeStep, 1U);
    QTest::keyClick(&view().scene(), Qt::Key_PageUp);
    settle();
    EXPECT_EQ(content().timeStep, 0U);
}

TEST_F(ViewTest, PlaneIsChosenByASlider) {
    importCylinder();
    choose("Surfaces", "J plane");
    part<QSlider>("Plane").setValue(7);
    settle();
    for (const plot3d::scene::ZonePart_s& zone : content().parts)
        for (const plot3d::scene::Patch_s& patch : zone.mesh->patches) {
            EXPECT_EQ(patch.box.j.first, 6);
            EXPECT_EQ(patch.box.j.last, 6);
        }
}

TEST_F(ViewTest, ZonesThatAreNotTickedAreNotShown) {
    importVortex();
    tick("Strand 1", false);
    EXPECT_EQ(message(), "No zone is ticked in the tree.");
    EXPECT_FALSE(view().scene().isVisible());
    tick("Strand 1", true);
    EXPECT_TRUE(view().scene().isVisible());
}

TEST_F(ViewTest, CancelledColourLeavesThePictureAsItWas) {
    importVortex();
    holdPreparing();
    view().colourBy("E");
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    auto& cancel = *view().findChild<QPushButton*>(QStringLiteral("cancelView"));
    ASSERT_TRUE(comesTrue([&cancel] { return cancel.isVisible(); }));
    click(cancel);
    letGo();
    settle();
    EXPECT_EQ(content().colourName, "RHO");
    EXPECT_EQ(part<QComboBox>("Colour").currentText(), QStringLiteral("RHO"));
    EXPECT_FALSE(cancel.isVisible());
}

TEST_F(ViewTest, SecondClickReplacesTheFirst) {
    importVortex();
    holdPreparing();
    view().colourBy("E");
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    view().colourBy("RHO-V");
    letGo();
    settle();
    EXPECT_EQ(content().colourName, "RHO-V");
}

TEST_F(ViewTest, WindowIsClosedWhileThePictureIsPrepared) {
    importVortex();
    holdPreparing();
    view().colourBy("E");
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    letGo();
    destroyWindow();
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(ViewTest, GoesWithTheDataSet) {
    importVortex();
    choose(QStringLiteral("Discard Data Set"));
    settle();
    EXPECT_FALSE(view().scene().isVisible());
    EXPECT_FALSE(view().timeBar().isVisible());
}

TEST_F(ViewTest, DataOfAnotherAddOnSayWhyTheyAreNotShown) {
    openWindow(PLOT3D_ADDON_PATH);
    importVortex();
    EXPECT_EQ(message(), "Data of another add-on can't be looked at: where its values lie is not "
                         "known.");
}

TEST_F(ViewTest, PictureIsSavedAsItIsSeen) {
    EXPECT_FALSE(action(QStringLiteral("Save Picture...")).isEnabled());
    importVortex();
    person().pickFiles({file("seen.png")});
    choose(QStringLiteral("Save Picture..."));
    QImage seen = view().scene().grabFramebuffer();
    seen.reinterpretAsFormat(QImage::Format_RGB32);
    EXPECT_EQ(QImage(QString::fromStdString(file("seen.png"))), seen);
}

TEST_F(ViewTest, TitleTellsTheDataSet) {
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Quorvia Reference Host"));
    importVortex();
    EXPECT_EQ(window().windowTitle(),
              QStringLiteral("Plot3D DataSet, vortex_t0.00.q:1 \u2013 Quorvia Reference Host"));
}

TEST_F(ViewTest, IsTurnedByMouseAndKeysAndResetByAKey) {
    importCylinder();
    window().activateWindow();
    ASSERT_TRUE(comesToTheFront(window()));
    view().scene().setFocus();
    const auto camera = [this] { return view().scene().stage().camera(); };
    const auto before = camera().direction;
    const QPoint middle = view().scene().rect().center();
    QTest::mouseMove(&view().scene(), middle); // from wherever another test left the pointer
    QTest::mousePress(&view().scene(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(&view().scene(), middle + QPoint(60, 20));
    EXPECT_TRUE(comesTrue([&] { return camera().direction != before; })); // the display moves it
    QTest::mouseRelease(&view().scene(), Qt::LeftButton, {}, middle + QPoint(60, 20));
    QTest::keyClick(&view().scene(), Qt::Key_Home);
    for (std::size_t axis = 0; axis < 3; ++axis)
        EXPECT_NEAR(camera().direction[axis], before[axis], 1e-9);
    QTest::keyClick(&view().scene(), Qt::Key_Plus);
    EXPECT_NEAR(camera().zoom, 1.25, 1e-6);
}

} // namespace
} // namespace quorvia::host
