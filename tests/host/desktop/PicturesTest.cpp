// The pictures of docs/importing.md, taken of the program as it is.
#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include <QApplication>
#include <QHeaderView>
#include <QTest>

#include "host/desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

constexpr qint64 kLargestFile = 60 * 1024; // bytes

bool updatesGolden() {
    return std::getenv("PLOT3D_UPDATE_GOLDEN") != nullptr;
}

/// The colours of the picture, the most frequent first.
QList<QRgb> coloursOf(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    QList<QRgb> colours = counts.keys();
    std::sort(colours.begin(), colours.end(),
              [&counts](QRgb left, QRgb right) { return counts[left] > counts[right]; });
    return colours;
}

/// With one byte to a pixel, for small files: the shades of letters' edges are many.
QImage withFewColours(const QImage& image) {
    constexpr int kMostColours = 256;
    return image.convertToFormat(QImage::Format_Indexed8, coloursOf(image).mid(0, kMostColours),
                                 Qt::ThresholdDither | Qt::AvoidDither);
}

class PicturesTest : public DesktopTest {
protected:
    /// Takes a picture of the window. It must show something: its own size, and several colours.
    void take(const QString& name, QWidget& widget) {
        const QPixmap picture = widget.grab();
        const QString folder = updatesGolden()
                                   ? QStringLiteral(PLOT3D_SOURCE_DIR "/docs/images")
                                   : QString::fromStdString(directory().path().string());
        const QString file = QStringLiteral("%1/%2.png").arg(folder, name);
        const QImage image = withFewColours(picture.toImage());
        ASSERT_TRUE(image.save(file, "PNG", 0));
        EXPECT_EQ(QImage(file).size(), widget.size());
        EXPECT_GT(coloursOf(image).size(), 8);
        EXPECT_LT(QFileInfo(file).size(), kLargestFile);
    }
    void takeOfDialog(const QString& name) {
        person().inDialog("the dialog to be pictured",
                          [this, name](QDialog& dialog) { take(name, dialog); });
    }
    void writeSamples() { writeSample({"vortex", "--steps", "3"}); }
};

TEST_F(PicturesTest, ShowEachPageOfTheDialog) {
    writeSamples();
    person().pickFiles(files({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"}), true);
    takeOfDialog(QStringLiteral("dialog-files"));
    person().showPage(1);
    takeOfDialog(QStringLiteral("dialog-structure"));
    person().showPage(2);
    takeOfDialog(QStringLiteral("dialog-subset"));
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
}

TEST_F(PicturesTest, ShowTheFileSelection) {
    writeSamples();
    person().then("a file selection to be pictured", [this] {
        auto* dialog = visibleWindow<QFileDialog>();
        if (dialog == nullptr)
            return false;
        take(QStringLiteral("selection"), *dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
        return true;
    });
    choose(QStringLiteral("PLOT3D Loader..."));
}

TEST_F(PicturesTest, ShowTheTreeWithRanges) {
    writeSamples();
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q", "vortex_t0.50.q"});
    choose(QStringLiteral("Fetch All Values"));
    treeItem(QStringLiteral("Time 0.25"))->setExpanded(true);
    treeItem(QStringLiteral("2  vortex_t0.25.q:1"))->setExpanded(true);
    take(QStringLiteral("tree"), window());
}

} // namespace
} // namespace quorvia::host
