// The windows in a dark theme: what is written can be read.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QStatusBar>
#include <QToolButton>

#include "desktop/Contrast.h"
#include "desktop/ViewFixture.h"
#include "desktop/parts/DrawnIcon.h"

namespace quorvia::host {
namespace {

QPalette darkPalette() {
    const QColor window(45, 45, 48);
    const QColor base(30, 30, 30);
    const QColor text(225, 225, 225);
    QPalette palette(text, window, window.lighter(150), window.darker(150), window.lighter(120),
                     text, Qt::white, base, window);
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 40));
    palette.setColor(QPalette::Highlight, QColor(38, 79, 120));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor(160, 160, 160));
    palette.setColor(QPalette::ToolTipBase, window);
    palette.setColor(QPalette::ToolTipText, text);
    return palette;
}

class DarkThemeTest : public ViewTest {
protected:
    void SetUp() override {
        QApplication::setPalette(darkPalette());
        ViewTest::SetUp();
    }
    void TearDown() override {
        ViewTest::TearDown();
        QApplication::setPalette(light_);
    }
    QImage picture() {
        QImage seen = view().scene().grabFramebuffer();
        seen.reinterpretAsFormat(QImage::Format_RGB32);
        return seen;
    }

    static constexpr QPoint corner = {2, 2}; // nothing but paper

private:
    QPalette light_ = QApplication::palette();
};

bool showsText(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return !label->text().isEmpty();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty() || !button->icon().isNull();
    return qobject_cast<const QComboBox*>(&widget) != nullptr;
}

TEST_F(DarkThemeTest, TextsOfTheWindowCanBeRead) {
    importVortex();
    int count = 0;
    for (QWidget* widget : window().findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || !showsText(*widget))
            continue;
        ++count;
        const QPalette palette = widget->palette();
        EXPECT_GE(contrast(palette.color(widget->foregroundRole()),
                           palette.color(widget->backgroundRole())),
                  readable)
            << widget->metaObject()->className() << widget->objectName().toStdString();
        EXPECT_GE(strongestContrast(widget->grab().toImage()), readable)
            << widget->metaObject()->className() << widget->objectName().toStdString();
    }
    EXPECT_GE(count, 8);
}

TEST_F(DarkThemeTest, TreeMenusAndStatusCanBeRead) {
    importVortex();
    for (QWidget* widget : std::initializer_list<QWidget*>{&window().tree(), window().menuBar(),
                                                           window().statusBar()})
        EXPECT_GE(strongestContrast(widget->grab().toImage()), readable)
            << widget->metaObject()->className();
    EXPECT_LT(mostFrequent(window().tree().viewport()->grab().toImage()).lightness(), 128);
}

TEST_F(DarkThemeTest, HintOfAnEmptyTreeCanBeRead) {
    EXPECT_GE(strongestContrast(window().tree().viewport()->grab().toImage()), readable);
}

TEST_F(DarkThemeTest, IconsAreInTheColourOfTexts) {
    for (const Icon_e icon : {Icon_e::Open, Icon_e::Reload, Icon_e::Play, Icon_e::Pause}) {
        QImage image(24, 24, QImage::Format_RGB32);
        image.fill(QApplication::palette().color(QPalette::Button));
        QPainter painter(&image);
        drawnIcon(icon).paint(&painter, image.rect());
        EXPECT_GE(strongestContrast(image), recognisable) << static_cast<int>(icon);
    }
}

TEST_F(DarkThemeTest, PictureStandsOnDarkPaperWithTextsThatCanBeRead) {
    importVortex();
    const QImage seen = picture();
    EXPECT_EQ(QColor(seen.pixel(corner)), QColor(30, 30, 30));
    constexpr int titleRows = 48;
    EXPECT_GE(strongestContrast(seen.copy(0, 0, seen.width(), titleRows)), readable);
    constexpr int legendColumns = 70;
    EXPECT_GE(
        strongestContrast(seen.copy(seen.width() - legendColumns, 0, legendColumns, seen.height())),
        readable);
}

TEST_F(DarkThemeTest, PictureFollowsTheThemeAndASavedViewDoesNot) {
    importVortex();
    EXPECT_EQ(viewOf(view().viewText()).background, "white");
    QPalette light = darkPalette();
    light.setColor(QPalette::Base, Qt::white);
    QApplication::setPalette(light);
    ASSERT_TRUE(comesTrue([this] { return content().view.background == "white"; }));
    settle();
    EXPECT_EQ(QColor(picture().pixel(corner)), QColor(Qt::white));
}

TEST_F(DarkThemeTest, PagesOfTheDialogCanBeRead) {
    writeSample({"vortex", "--steps", "1"});
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), true);
    for (int page = 0; page < 3; ++page) {
        person().showPage(page);
        person().inDialog("a page of the dialog", [page](QDialog& dialog) {
            for (QWidget* widget : dialog.findChildren<QWidget*>())
                if (widget->isVisible() && widget->isEnabled() && showsText(*widget)) {
                    EXPECT_GE(strongestContrast(widget->grab().toImage()), readable)
                        << page << widget->objectName().toStdString();
                }
        });
    }
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
}

} // namespace
} // namespace quorvia::host
