// The windows at the scale factor that QT_SCALE_FACTOR says; run with 1, 1.5 and 2.
#include <cstdlib>

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QHeaderView>

#include "desktop/ViewFixture.h"
#include "support/TextPattern.h"

namespace quorvia::host {
namespace {

class ScaleTest : public ViewTest {
protected:
    static double factor() {
        const char* text = std::getenv("QT_SCALE_FACTOR");
        return text != nullptr ? std::atof(text) : 1;
    }
    /// "i 14  j 20" of the point at a place of the picture, which has the same size, in the units
    /// of windows, at each factor.
    std::string pointAt(int x, int y) {
        view().scene().setFixedSize(600, 480);
        EXPECT_TRUE(comesTrue([this] { return view().scene().size() == QSize(600, 480); }));
        view().scene().resetCamera();
        QTest::mouseClick(&view().scene(), Qt::LeftButton, {}, QPoint(x, y));
        settle();
        const std::string told = pointText();
        const auto place = testsupport::TextPattern("i \\d+  j \\d+").firstMatch(told);
        return place.empty() ? told : place[0];
    }
};

QString lineOf(const QWidget& widget) {
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return label->wordWrap() ? QString() : label->text().remove(QLatin1Char('&'));
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return button->text().remove(QLatin1Char('&'));
    if (const auto* box = qobject_cast<const QComboBox*>(&widget))
        return box->currentText();
    return {};
}

void expectNothingIsCut(const QWidget& window) {
    int count = 0;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QString text = lineOf(*widget);
        if (!widget->isVisible() || text.isEmpty())
            continue;
        ++count;
        const QSize needed = widget->fontMetrics().size(0, text);
        EXPECT_GE(widget->width(), needed.width()) << text.toStdString();
        EXPECT_GE(widget->height(), needed.height()) << text.toStdString();
        const QRect place(widget->pos(), needed);
        EXPECT_TRUE(widget->parentWidget()->rect().contains(place)) << text.toStdString();
    }
    EXPECT_GT(count, 5);
}

TEST_F(ScaleTest, IsTheOneThatWasAskedFor) {
    EXPECT_EQ(window().devicePixelRatioF(), factor());
}

TEST_F(ScaleTest, CutsNoTextOfTheWindow) {
    importVortex();
    choose("Surfaces", "J plane");
    expectNothingIsCut(window());
    const QHeaderView& header = *window().tree().header();
    for (int column = 0; column < header.count(); ++column)
        EXPECT_GE(header.sectionSize(column), header.fontMetrics().horizontalAdvance(
                                                  window().tree().headerItem()->text(column)));
}

TEST_F(ScaleTest, CutsNoTextOfTheDialog) {
    writeSample({"vortex", "--steps", "1"});
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q"}), true);
    for (int page = 0; page < 3; ++page) {
        person().showPage(page);
        person().inDialog("a page of the dialog",
                          [](QDialog& dialog) { expectNothingIsCut(dialog); });
    }
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
}

TEST_F(ScaleTest, ClickHitsTheSamePoint) {
    importVortex();
    EXPECT_EQ(pointAt(150, 200), "i 7  j 23");
    EXPECT_EQ(pointAt(350, 300), "i 28  j 14");
}

/// Rows that hold ink, in the units of windows.
double inkedRows(const QImage& image, double factor) {
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        bool hasInk = false;
        for (int x = 0; x < image.width(); ++x)
            hasInk = hasInk || qGray(image.pixel(x, y)) < 128;
        rows += hasInk ? 1 : 0;
    }
    return rows / factor;
}

TEST_F(ScaleTest, LettersOfThePictureAreOfOneSize) {
    importVortex();
    view().scene().setFixedSize(600, 480);
    ASSERT_TRUE(comesTrue([this] { return view().scene().size() == QSize(600, 480); }));
    const QImage seen = view().scene().grabFramebuffer();
    const QRectF title(0, 0, 300 * factor(), 48 * factor());
    EXPECT_NEAR(inkedRows(seen.copy(title.toRect()), factor()), 18, 3);
}

TEST_F(ScaleTest, PictureHasThePixelsOfTheScreen) {
    importVortex();
    view().scene().setFixedSize(600, 480);
    ASSERT_TRUE(comesTrue([this] { return view().scene().size() == QSize(600, 480); }));
    const auto expected = [](int length) { return static_cast<int>(length * factor()); };
    EXPECT_EQ(view().scene().grabFramebuffer().size(), QSize(expected(600), expected(480)));
}

} // namespace
} // namespace quorvia::host
