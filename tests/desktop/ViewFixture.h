// The program's window with the add-on that is linked in, so that there is a picture.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>

#include <QComboBox>
#include <QLabel>
#include <QTest>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#include "desktop/view/ViewPanel.h"
#include "view/ViewJson.h"

namespace quorvia::host {

class ViewTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        openWindow(linkedIn);
    }
    /// Plane data of three time steps.
    void importVortex() {
        writeSample({"vortex", "--steps", "3"});
        import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q", "vortex_t0.50.q"});
        settle();
    }
    /// Zones in space.
    void importCylinder() {
        writeSample({"cylinder"});
        import({"cylinder.x", "cylinder.q"});
        settle();
    }
    ViewPanel& view() { return dynamic_cast<ViewPanel&>(window().view()); }
    const plot3d::scene::SceneContent_s& content() { return *view().content(); }
    void settle() {
        ASSERT_TRUE(comesTrue([this] { return view().isSettled(); }));
    }
    template <typename Widget>
    Widget& part(const char* name) {
        return *qobject_cast<Widget*>(namedWidget(view(), QLatin1String(name)));
    }
    void clickInTree(const char* item) {
        QTreeWidgetItem* found = treeItem(QLatin1String(item));
        window().tree().scrollToItem(found);
        QTest::mouseClick(window().tree().viewport(), Qt::LeftButton, {},
                          window().tree().visualItemRect(found).center());
        settle();
    }
    void tick(const char* item, bool on) {
        treeItem(QLatin1String(item))->setCheckState(0, on ? Qt::Checked : Qt::Unchecked);
        settle();
    }
    /// As a user does by keys.
    void choose(const char* box, const char* item) {
        auto& list = part<QComboBox>(box);
        while (list.currentText() != QLatin1String(item)) {
            const int before = list.currentIndex();
            QTest::keyClick(&list, list.findText(QLatin1String(item)) > before ? Qt::Key_Down
                                                                               : Qt::Key_Up);
            ASSERT_NE(list.currentIndex(), before);
        }
        settle();
    }
    using DesktopTest::choose;
    std::string message() {
        return view().findChild<QLabel*>(QStringLiteral("viewMessage"))->text().toStdString();
    }
    std::string pointText() {
        return view().findChild<QLabel*>(QStringLiteral("pointValues"))->text().toStdString();
    }
    void clickAt(double x, double y) {
        const QSize size = view().scene().size();
        QTest::mouseClick(
            &view().scene(), Qt::LeftButton, {},
            QPoint(static_cast<int>(size.width() * x), static_cast<int>(size.height() * y)));
        settle();
    }
    static plot3d::scene::View_s viewOf(const std::string& json) {
        return plot3d::scene::viewFromJson(json);
    }
    /// From now on preparing stands still, until it is let go or replaced.
    void holdPreparing() {
        view().preparing().setObserver([this](const plot3d::Progress&) {
            isHeld_ = true;
            while (!isLetGo_)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
    }
    bool isHeld() const { return isHeld_; }
    void letGo() { isLetGo_ = true; }

private:
    inline static const std::string linkedIn;
    std::atomic<bool> isHeld_ = false;
    std::atomic<bool> isLetGo_ = false;
};

} // namespace quorvia::host
