// Imports by hand without the loader's dialog, and the file selection with its options.
#include <atomic>
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QHelpEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QUrl>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"
#include "desktop/parts/MessageBoxes.h"

namespace quorvia::host {
namespace {

class ImportTest : public DesktopTest {
protected:
    /// Looks at the file selection, and cancels it.
    void lookAtSelection(const std::function<void(QFileDialog&)>& look) {
        person().then("a file selection to look at", [look] {
            auto* dialog = visibleSelection();
            if (dialog == nullptr)
                return false;
            look(*dialog);
            QTest::keyClick(dialog, Qt::Key_Escape);
            return true;
        });
        choose(QStringLiteral("PLOT3D Loader..."));
    }
    /// Files from another program.
    void drop(const std::vector<std::string>& names) {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& path : files(names))
            urls.append(QUrl::fromLocalFile(QString::fromStdString(path)));
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(QPointF(10, 10), Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window(), &event);
        QTest::qWait(0); // the import begins once the drop has ended
        waitUntilDone();
    }
    /// Right behind the beginning of the work that a new window begins with, so that its end can't
    /// come first.
    void closeOnceBusy() {
        bool isBusy = false;
        QTimer::singleShot(0, &window(), [this, &isBusy] {
            isBusy = window().session().isBusy();
            window().close();
        });
        EXPECT_TRUE(comesTrue([&isBusy] { return isBusy; }));
    }
    void answerDrop(const char* button) {
        person().then("the question of a drop", [button] {
            auto* box = visibleBox();
            if (box == nullptr)
                return false;
            click(*namedWidget(*box, QLatin1String(button)));
            return true;
        });
    }
    /// An action may stand in the tool bar as well.
    QMenu* menuOf(QAction& action) {
        for (QMenu* menu : window().findChildren<QMenu*>())
            if (menu->actions().contains(&action))
                return menu;
        return nullptr;
    }
    static QCheckBox& option(QFileDialog& dialog, const char* name) {
        return *dialog.findChild<QCheckBox*>(QLatin1String(name));
    }
};

TEST_F(ImportTest, BringsInTheFilesThatWerePicked) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 2U);
    const std::vector<float> x = values(1, 1);
    ASSERT_EQ(x.size(), 35U);
    EXPECT_EQ(x.front(), -5.0F);
    EXPECT_EQ(x.back(), 5.0F);
}

TEST_F(ImportTest, AppendsWhenAskedTo) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    constexpr bool appending = true;
    import({"vortex.x", "vortex_t0.25.q"}, appending);
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 2U);
}

TEST_F(ImportTest, TellsWhyAFileIsRefused) {
    directory().write("broken.x", "no numbers");
    person().pickFiles(files({"broken.x"}));
    person().answerBox();
    choose(QStringLiteral("PLOT3D Loader..."));
    ASSERT_EQ(person().boxTexts().size(), 1U);
    EXPECT_NE(person().boxTexts().front(), "");
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(ImportTest, CancelledSelectionChangesNothing) {
    person().cancelFileSelection();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(ImportTest, NothingIsLeftOfADiscardedDataSet) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    choose(QStringLiteral("Discard Data Set"));
    EXPECT_EQ(window().tree().dataSet(), nullptr);
    EXPECT_EQ(host().frame().dataSet(), nullptr);
    EXPECT_FALSE(action(QStringLiteral("Discard Data Set")).isEnabled());
}

TEST_F(ImportTest, SelectionOffersTheLoadersFilesFirst) {
    lookAtSelection([](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.nameFilters().front().startsWith(QLatin1String("PLOT3D Loader (")));
        EXPECT_TRUE(dialog.nameFilters().front().contains(QLatin1String(" *.xyz")));
        EXPECT_EQ(dialog.nameFilters().back(), QStringLiteral("All files (*)"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFiles);
    });
}

TEST_F(ImportTest, AppendingNeedsADataSetAndSaysSo) {
    lookAtSelection([](QFileDialog& dialog) {
        EXPECT_FALSE(option(dialog, "append").isEnabled());
        EXPECT_EQ(option(dialog, "append").toolTip(),
                  QStringLiteral("There is no data set to append to yet."));
    });
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    lookAtSelection([](QFileDialog& dialog) { EXPECT_TRUE(option(dialog, "append").isEnabled()); });
}

TEST_F(ImportTest, AppendingIsLeftToTheLoadersDialogAndSaysSo) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    lookAtSelection([](QFileDialog& dialog) {
        click(option(dialog, "advanced"));
        EXPECT_FALSE(option(dialog, "append").isEnabled());
        EXPECT_EQ(option(dialog, "append").toolTip(),
                  QStringLiteral("The loader's dialog has a choice of its own."));
        click(option(dialog, "advanced"));
        EXPECT_TRUE(option(dialog, "append").isEnabled());
        EXPECT_EQ(option(dialog, "append").toolTip(),
                  QStringLiteral("Keep the data set, and add what is in the files."));
    });
}

TEST_F(ImportTest, SelectionRemembersTheFolderInALaterRun) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    openWindow();
    lookAtSelection([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), directory().path().string());
    });
}

TEST_F(ImportTest, DroppedFilesAreImported) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    drop({"vortex.x", "vortex_t0.00.q"});
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 1U);
}

TEST_F(ImportTest, FilesDroppedOntoADataSetAreAppendedWhenAskedTo) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    answerDrop("Append");
    drop({"vortex.x", "vortex_t0.25.q"});
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 2U);
}

TEST_F(ImportTest, FilesDroppedOntoADataSetReplaceItWhenAskedTo) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    answerDrop("Replace");
    drop({"vortex.x", "vortex_t0.25.q"});
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 1U);
    EXPECT_EQ(window().tree().dataSet()->zones.front().name, "vortex_t0.25.q:1");
}

TEST_F(ImportTest, DropThatIsCancelledChangesNothing) {
    writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    answerDrop("Cancel");
    drop({"vortex.x", "vortex_t0.25.q"});
    EXPECT_EQ(window().tree().dataSet()->zones.front().name, "vortex_t0.00.q:1");
}

TEST_F(ImportTest, FilesOfTheCommandLineComeInAtTheStart) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    openWindow(PLOT3D_ADDON_PATH, files({"vortex.x", "vortex_t0.00.q"}));
    EXPECT_NE(window().tree().dataSet(), nullptr);
}

TEST_F(ImportTest, WindowThatIsClosedBeforeTheAddOnIsOpenImportsNothing) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    startWindow(PLOT3D_ADDON_PATH, files({"vortex.x", "vortex_t0.00.q"}));
    closeOnceBusy();
    EXPECT_TRUE(comesTrue([this] { return !window().isVisible(); }));
    EXPECT_FALSE(window().session().isBusy());
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(ImportTest, WindowThatIsClosedBeforeTheAddOnIsOpenTellsNoFault) {
    startWindow(directory().file("nowhere.so"), {});
    closeOnceBusy();
    EXPECT_TRUE(comesTrue([this] { return window().isReady(); }));
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(person().boxTexts(), std::vector<std::string>());
}

TEST_F(ImportTest, EndOfTheProgramWaitsForAnImport) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    startWindow(PLOT3D_ADDON_PATH, files({"vortex.x", "vortex_t0.00.q"}));
    std::atomic<bool> isLoading = false;
    host().settings().progressObserver = [&isLoading](const ProgressState_s&) {
        isLoading = true;
        std::this_thread::sleep_for(std::chrono::milliseconds(20)); // as on a slow disk
    };
    ASSERT_TRUE(comesTrue([&isLoading] { return isLoading.load(); }));
    destroyWindow();
    EXPECT_EQ(loaderCount("plot3dloader.so"), 0);
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(ImportTest, EndOfTheProgramAnswersForTheUser) {
    directory().write("broken.x", "no numbers");
    startWindow(PLOT3D_ADDON_PATH, files({"broken.x"}));
    ASSERT_TRUE(comesTrue([this] { return window().session().loader().has_value(); }));
    constexpr auto untilItIsRefused = std::chrono::milliseconds(300);
    std::this_thread::sleep_for(untilItIsRefused); // no window is awake to tell it
    destroyWindow();
    EXPECT_EQ(loaderCount("plot3dloader.so"), 0);
}

TEST_F(ImportTest, LongMessageStaysOnTheScreen) {
    person().then("a long message", [] {
        auto* box = visibleBox();
        if (box == nullptr)
            return false;
        EXPECT_LT(box->height(), 600);
        EXPECT_EQ(box->detailedText().count(QLatin1Char('\n')), 97);
        click(*box->button(QMessageBox::Ok));
        return true;
    });
    std::string text = "first";
    for (int line = 0; line < 97; ++line)
        text += "\nline";
    showText(&window(), text, TextKind_e::Error);
}

TEST_F(ImportTest, GreyedMenuEntrySaysWhy) {
    QAction& discard = action(QStringLiteral("Discard Data Set"));
    ASSERT_FALSE(discard.isEnabled());
    QMenu* menu = menuOf(discard);
    ASSERT_NE(menu, nullptr);
    menu->popup(window().mapToGlobal(QPoint(0, 0)));
    const QPoint where = menu->actionGeometry(&discard).center();
    QHelpEvent pause(QEvent::ToolTip, where, menu->mapToGlobal(where));
    QApplication::sendEvent(menu, &pause);
    EXPECT_EQ(QToolTip::text(), QStringLiteral("There is no data set, or work goes on."));
    menu->close();
    for (const char* other : {"PLOT3D Loader...", "Fetch All Values"})
        EXPECT_TRUE(menuOf(action(QLatin1String(other)))->toolTipsVisible()) << other;
}

TEST_F(ImportTest, NothingCanBeImportedWithoutAnAddOn) {
    person().answerBox();
    openWindow(directory().file("nowhere.so"));
    ASSERT_EQ(person().boxTexts().size(), 1U);
    EXPECT_FALSE(action(QStringLiteral("No Loader")).isEnabled());
    EXPECT_NE(action(QStringLiteral("No Loader")).toolTip(), QString());
}

} // namespace
} // namespace quorvia::host
