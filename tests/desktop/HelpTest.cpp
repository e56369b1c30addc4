#include "desktop/parts/HelpWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"

namespace quorvia::host {
namespace {

QDialog* helpWindow() {
    for (QWidget* widget : QApplication::allWidgets())
        if (widget->objectName() == QLatin1String("help") && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    return nullptr;
}

QString helpText() {
    return helpWindow()->findChild<QTextBrowser*>()->toPlainText();
}

class HelpTest : public DesktopTest {};

TEST_F(HelpTest, MenuOpensThePageOnImporting) {
    choose(QStringLiteral("Importing PLOT3D Files"));
    ASSERT_NE(helpWindow(), nullptr);
    EXPECT_TRUE(helpText().contains(QLatin1String("PLOT3D")));
}

TEST_F(HelpTest, PageBeginsAtTheTarget) {
    choose(QStringLiteral("Importing PLOT3D Files"));
    auto* bar = helpWindow()->findChild<QTextBrowser*>()->verticalScrollBar();
    EXPECT_TRUE(comesTrue([bar] { return bar->value() > 0; }));
}

TEST_F(HelpTest, OneWindowIsOpenAtATime) {
    choose(QStringLiteral("Importing PLOT3D Files"));
    choose(QStringLiteral("Importing PLOT3D Files"));
    EXPECT_EQ(window().findChildren<QTextBrowser*>().size(), 1);
}

TEST_F(HelpTest, UnknownPageIsTold) {
    HelpWindow::show(&window(), "missing.html#here");
    EXPECT_EQ(helpText(), QStringLiteral("There is no page \"missing.html\"."));
}

TEST_F(HelpTest, DialogsHelpCanBeReadBesideIt) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), true);
    person().clickInDialog(QStringLiteral("Help"));
    person().then("the help window", [] {
        QDialog* help = helpWindow();
        if (help == nullptr)
            return false;
        EXPECT_TRUE(help->parentWidget() == guestDialog());
        QTest::keyClick(help, Qt::Key_Escape);
        return true;
    });
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(helpWindow(), nullptr);
    EXPECT_EQ(host().log().helpTargets,
              std::vector<std::string>{"data-loading.html#data-loading/plot3d"});
}

} // namespace
} // namespace quorvia::host
