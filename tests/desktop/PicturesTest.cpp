// The pictures of docs/importing.md, taken of the program as it is.
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <tuple>

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QTest>
#include <QTreeView>

#ifdef QUORHOST_HAS_VIEW
#include "desktop/view/ViewPanel.h"
#endif
#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#include "desktop/values/HistogramWindow.h"

namespace quorvia::host {
namespace {

constexpr qint64 largestFile = 60 * 1024; // bytes

// The same in every picture, so that a picture changes only with the program.
const auto dayOfThePictures = std::chrono::file_clock::from_sys(std::chrono::sys_seconds{
    std::chrono::sys_days{std::chrono::January / 15 / 2026} + std::chrono::hours{12}});

bool updatesGolden() {
    return std::getenv("PLOT3D_UPDATE_GOLDEN") != nullptr;
}

/// The colours of the picture, the most frequent first.
QVector<QRgb> coloursOf(const QImage& image) {
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    const QList<QRgb> found = counts.keys();
    QVector<QRgb> colours(found.begin(), found.end());
    std::sort(colours.begin(), colours.end(), [&counts](QRgb left, QRgb right) {
        return std::make_tuple(counts[right], left) < std::make_tuple(counts[left], right);
    });
    return colours;
}

/// With one byte to a pixel, for small files: the shades of letters' edges are many.
QImage withFewColours(const QImage& image) {
    constexpr int mostColours = 256;
    return image.convertToFormat(QImage::Format_Indexed8, coloursOf(image).mid(0, mostColours),
                                 Qt::ThresholdDither | Qt::AvoidDither);
}

/// As it is listed once the folder was read and sorted.
QString firstFile(const QFileDialog& dialog) {
    const auto* list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    return list->rootIndex().isValid()
               ? list->model()->index(0, 0, list->rootIndex()).data().toString()
               : QString();
}

enum class Colours_e { Few, All };

class PicturesTest : public DesktopTest {
protected:
    inline static const std::string linkedIn;

    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "6"}, samples_);
        for (const auto& entry : std::filesystem::directory_iterator(samples_))
            std::filesystem::last_write_time(entry.path(), dayOfThePictures);
    }
    /// Takes a picture of the window. It must show something: its own size, and several colours.
    void take(const QString& name, QWidget& widget, Colours_e colours = Colours_e::Few) {
        const QString folder = updatesGolden()
                                   ? QStringLiteral(PLOT3D_SOURCE_DIR "/docs/images")
                                   : QString::fromStdString(directory().path().string());
        const QString file = QStringLiteral("%1/%2.png").arg(folder, name);
        const QImage whole = widget.grab().toImage();
        const QImage image = colours == Colours_e::Few ? withFewColours(whole) : whole;
        constexpr int smallest = 0; // of the qualities, and the file
        ASSERT_TRUE(image.save(file, "PNG", smallest));
        EXPECT_EQ(QImage(file).size(), widget.size());
        EXPECT_GT(coloursOf(image).size(), 8);
        EXPECT_LT(QFileInfo(file).size(),
                  colours == Colours_e::Few ? largestFile : 2 * largestFile);
    }
    void takeOfDialog(const QString& name) {
        person().inDialog("the dialog to be pictured",
                          [this, name](QDialog& dialog) { take(name, dialog); });
    }
    void pick(bool advanced) {
        std::vector<std::string> paths = {samples_ + "/vortex.x"};
        for (const char* time : {"0.00", "0.25", "0.50", "0.75", "1.00", "1.25"})
            paths.push_back(samples_ + "/vortex_t" + time + ".q");
        person().pickFiles(paths, advanced);
    }
    void importSeries() {
        constexpr bool withoutDialog = false;
        pick(withoutDialog);
        choose(QStringLiteral("PLOT3D Loader..."));
    }

private:
    // Readers of the pictures see this name.
    std::string samples_ = updatesGolden()
                               ? (std::filesystem::temp_directory_path() / "samples").string()
                               : directory().file("samples");
};

TEST_F(PicturesTest, ShowEachPageOfTheDialog) {
    constexpr bool withDialog = true;
    pick(withDialog);
    takeOfDialog(QStringLiteral("dialog-files"));
    person().showPage(1);
    takeOfDialog(QStringLiteral("dialog-structure"));
    person().showPage(2);
    takeOfDialog(QStringLiteral("dialog-subset"));
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
}

TEST_F(PicturesTest, ShowTheFileSelection) {
    importSeries(); // its folder is remembered
    person().then("a file selection with files, to be pictured", [this] {
        auto* dialog = visibleSelection();
        if (dialog == nullptr || firstFile(*dialog) != QLatin1String("vortex.x"))
            return false;
        take(QStringLiteral("selection"), *dialog);
        QTest::keyClick(dialog, Qt::Key_Escape);
        return true;
    });
    choose(QStringLiteral("PLOT3D Loader..."));
}

TEST_F(PicturesTest, ShowTheProgress) {
    // The load stands still in its middle until the picture was taken.
    std::atomic<bool> isTaken = false;
    const auto observer = host().settings().progressObserver;
    host().settings().progressObserver = [&isTaken, observer](const ProgressState_s& state) {
        observer(state);
        const bool isInTheMiddle = state.text.find("Zone=004, Var=003") != std::string::npos;
        while (isInTheMiddle && !isTaken)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    };
    constexpr bool withoutDialog = false;
    pick(withoutDialog);
    person().then("the progress window to be pictured", [this, &isTaken] {
        ProgressWindow& progress = window().session().progressWindow();
        const auto* text = progress.findChild<QLabel*>();
        if (!progress.isVisible() || !text->text().contains(QLatin1String("Var=003")))
            return false;
        take(QStringLiteral("progress"), progress);
        isTaken = true;
        return true;
    });
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_NE(window().tree().dataSet(), nullptr);
}

TEST_F(PicturesTest, ShowAHistogram) {
    openWindow(linkedIn);
    importSeries();
    window().tree().setCurrentItem(treeItem(QStringLiteral("E")));
    choose(QStringLiteral("Show Histogram"));
    auto& histogram =
        *dynamic_cast<HistogramWindow*>(window().findChild<QDialog*>(QStringLiteral("histogram")));
    EXPECT_TRUE(comesTrue([&histogram] { return histogram.table().rowCount() > 0; }));
    take(QStringLiteral("histogram"), histogram);
}

#ifdef QUORHOST_HAS_VIEW
TEST_F(PicturesTest, ShowTheTreeWithRanges) {
    openWindow(linkedIn);
    importSeries();
    choose(QStringLiteral("Fetch All Values"));
    treeItem(QStringLiteral("Time 0.25"))->setExpanded(true);
    treeItem(QStringLiteral("2  vortex_t0.25.q:1"))->setExpanded(true);
    auto& view = dynamic_cast<ViewPanel&>(window().view());
    EXPECT_TRUE(comesTrue([&view] { return view.isSettled(); }));
    take(QStringLiteral("tree"), window(), Colours_e::All);
}
#endif

} // namespace
} // namespace quorvia::host
