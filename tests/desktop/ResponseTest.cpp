// Nobody waits: clicks are answered while something is prepared, and a slow picture is turned with
// less detail.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>

#include <vtkCallbackCommand.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>

#include "desktop/ViewFixture.h"

namespace quorvia::host {
namespace {

using plot3d::scene::Detail_e;

class ResponseTest : public ViewTest {
protected:
    static constexpr std::chrono::hours forEver = std::chrono::hours(1);
    static constexpr std::chrono::seconds always = std::chrono::seconds(0);

    Detail_e detail() { return view().scene().stage().detail(); }
    QPoint middle() { return view().scene().rect().center(); }
    QPoint dragged() { return middle() + QPoint(60, 20); }
    void startDrag() {
        QTest::mousePress(&view().scene(), Qt::LeftButton, {}, middle());
        // Not by the pointer, which the display moves when it comes to it.
        QMouseEvent move(QEvent::MouseMove, dragged(), view().scene().mapToGlobal(dragged()),
                         Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(&view().scene(), &move);
    }
    void endDrag() { QTest::mouseRelease(&view().scene(), Qt::LeftButton, {}, dragged()); }
    /// A frame was drawn with all detail, and its time is known.
    void drawOnce() { view().scene().grabFramebuffer(); }
};

TEST_F(ResponseTest, ClickIsAnsweredWhileSomethingIsPrepared) {
    importVortex();
    holdPreparing();
    view().colourBy("E");
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    QTest::mouseClick(&view().scene(), Qt::LeftButton, {}, middle());
    EXPECT_TRUE(comesTrue([this] { return pointText().find("RHO-V = ") != std::string::npos; }));
    const auto* values = view().findChild<QLabel*>(QStringLiteral("pointValues"));
    EXPECT_TRUE(values->isVisible());
    EXPECT_TRUE(view().preparing().isRunning());
    letGo();
    settle();
    EXPECT_EQ(content().colourName, "E");
}

TEST_F(ResponseTest, ClickAtASlowPictureIsToldAheadOfTheNextFrame) {
    importCylinder();
    view().scene().setSlowFrame(always);
    drawOnce();
    int frames = 0;
    const vtkNew<vtkCallbackCommand> count;
    count->SetClientData(&frames);
    count->SetCallback(
        [](vtkObject*, unsigned long, void* counted, void*) { ++*static_cast<int*>(counted); });
    view().scene().renderWindow()->AddObserver(vtkCommand::EndEvent, count);
    QTest::mouseClick(&view().scene(), Qt::LeftButton, {}, middle());
    EXPECT_EQ(frames, 0);
    EXPECT_EQ(pointText().find("Zone "), 0U);
    EXPECT_TRUE(comesTrue([&frames] { return frames > 0; })); // with the mark
    view().scene().renderWindow()->RemoveObserver(count);
}

TEST_F(ResponseTest, TreeMenusAndCameraGoOnWhileSomethingIsPrepared) {
    importVortex();
    holdPreparing();
    view().colourBy("E");
    ASSERT_TRUE(comesTrue([this] { return isHeld(); }));
    treeItem(QStringLiteral("Time 0.25"))->setExpanded(true);
    EXPECT_NE(treeItem(QStringLiteral("2  vortex_t0.25.q:1")), nullptr);
    const double before = view().scene().stage().camera().zoom;
    view().scene().zoom(2);
    EXPECT_NEAR(view().scene().stage().camera().zoom, 2 * before, 1e-6);
    EXPECT_TRUE(view().preparing().isRunning());
    letGo();
    settle();
}

TEST_F(ResponseTest, PictureStaysWhereItIsWhileProgressIsShown) {
    importVortex();
    const QRect before = view().scene().geometry();
    holdPreparing();
    view().colourBy("E");
    const auto* cancel = view().findChild<QPushButton*>(QStringLiteral("cancelView"));
    ASSERT_TRUE(comesTrue([cancel] { return cancel->isVisible(); }));
    EXPECT_EQ(view().scene().geometry(), before);
    letGo();
    settle();
}

TEST_F(ResponseTest, SlowPictureIsDraggedWithLessDetail) {
    importCylinder();
    view().scene().setSlowFrame(always);
    drawOnce();
    startDrag();
    EXPECT_EQ(detail(), Detail_e::Coarse);
    endDrag();
    EXPECT_EQ(detail(), Detail_e::Full);
}

TEST_F(ResponseTest, QuickPictureIsDraggedAsItIs) {
    importCylinder();
    view().scene().setSlowFrame(forEver);
    drawOnce();
    startDrag();
    EXPECT_EQ(detail(), Detail_e::Full);
    endDrag();
}

TEST_F(ResponseTest, SlowPictureIsTurnedByKeysWithLessDetailUntilTheyRest) {
    importCylinder();
    view().scene().setSlowFrame(always);
    drawOnce();
    view().scene().turn(10, 0);
    EXPECT_EQ(detail(), Detail_e::Coarse);
    EXPECT_TRUE(comesTrue([this] { return detail() == Detail_e::Full; }));
}

} // namespace
} // namespace quorvia::host
