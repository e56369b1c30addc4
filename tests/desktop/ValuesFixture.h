// The program's window with the add-on that is linked in, and the windows that show values.
#pragma once

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include "desktop/BlankedFiles.h"
#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#include "desktop/values/HistogramWindow.h"
#include "desktop/values/IBlankWindow.h"

namespace quorvia::host {

class ValuesTest : public DesktopTest {
protected:
    using Rows = std::vector<std::vector<std::string>>;

    void SetUp() override {
        DesktopTest::SetUp();
        openWindow(linkedIn);
    }
    void importVortex() {
        writeSample({"vortex", "--steps", "3"});
        import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q", "vortex_t0.50.q"});
    }
    void importBlanked() { import(writeBlankedFiles(directory())); }

    /// Of the zone of that number; 0: no row is current.
    HistogramWindow& openHistogram(std::size_t zone, const char* variable, int bins) {
        openAt(zone, "Show Histogram");
        auto& window = *dynamic_cast<HistogramWindow*>(find("histogram"));
        set<QSpinBox>(window, "Bins", bins);
        auto& list = *qobject_cast<QComboBox*>(namedWidget(window, QStringLiteral("Variable")));
        list.setCurrentIndex(list.findText(QLatin1String(variable)));
        settle(window);
        return window;
    }
    IBlankWindow& openIBlank(std::size_t zone) {
        openAt(zone, "Show Values of I-Blank");
        auto& window = *dynamic_cast<IBlankWindow*>(find("iBlank"));
        settle(window);
        return window;
    }
    QDialog* find(const char* name) { return window().findChild<QDialog*>(QLatin1String(name)); }
    static void settle(ValuesWindow& window) {
        ASSERT_TRUE(comesTrue([&window] { return !window.work().isRunning(); }));
    }
    template <typename Widget>
    static void set(QWidget& window, const char* name, int value) {
        qobject_cast<Widget*>(namedWidget(window, QLatin1String(name)))->setValue(value);
    }
    static void choose(StatisticsWindow& window, const char* over) {
        auto& list = *qobject_cast<QComboBox*>(namedWidget(window, QStringLiteral("Values of")));
        list.setCurrentIndex(list.findText(QLatin1String(over)));
        settle(window);
    }
    using DesktopTest::choose;
    static Rows rowsOf(const StatisticsWindow& window) {
        Rows rows(static_cast<std::size_t>(window.table().rowCount()));
        for (std::size_t row = 0; row < rows.size(); ++row)
            for (int column = 0; column < window.table().columnCount(); ++column)
                rows[row].push_back(
                    window.table().item(static_cast<int>(row), column)->text().toStdString());
        return rows;
    }
    static void clickButton(QDialog& window, const char* text) {
        for (QPushButton* button : window.findChildren<QPushButton*>())
            if (button->text().remove(QLatin1Char('&')) == QLatin1String(text))
                click(*button);
    }
    static std::string clipboard() { return QApplication::clipboard()->text().toStdString(); }
    /// From now on its work stands still, until it is let go or replaced.
    void hold(ValuesWindow& window) {
        window.work().setObserver([this](const plot3d::Progress&) {
            isHeld_ = true;
            while (!isLetGo_)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        });
    }
    /// What was held is cancelled by the button that comes up meanwhile.
    void cancelHeld(ValuesWindow& window) {
        ASSERT_TRUE(comesTrue([this] { return isHeld_.load(); }));
        auto& cancel = *window.findChild<QPushButton*>(QStringLiteral("cancelWork"));
        ASSERT_TRUE(comesTrue([&cancel] { return cancel.isVisible(); }));
        click(cancel);
        isLetGo_ = true;
        settle(window);
    }
    bool isHeld() const { return isHeld_; }
    void letGo() { isLetGo_ = true; }

private:
    void openAt(std::size_t zone, const char* entry) {
        if (zone == 0)
            window().tree().setCurrentItem(nullptr);
        else
            window().tree().markZone(zone);
        choose(QLatin1String(entry));
    }

    inline static const std::string linkedIn;
    std::atomic<bool> isHeld_ = false;
    std::atomic<bool> isLetGo_ = false;
};

} // namespace quorvia::host
