// Imports by hand without the loader's dialog, and the file selection with its options.
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFileDialog>
#include <QTest>

#include "host/desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

class ImportTest : public DesktopTest {
protected:
    /// Looks at the file selection, and cancels it.
    void lookAtSelection(const std::function<void(QFileDialog&)>& look) {
        person().then("a file selection to look at", [look] {
            auto* dialog = visibleWindow<QFileDialog>();
            if (dialog == nullptr)
                return false;
            look(*dialog);
            QTest::keyClick(dialog, Qt::Key_Escape);
            return true;
        });
        choose(QStringLiteral("PLOT3D Loader..."));
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
    constexpr bool kAppend = true;
    import({"vortex.x", "vortex_t0.25.q"}, kAppend);
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

TEST_F(ImportTest, SelectionRemembersTheFolderInALaterRun) {
    writeSample({"vortex", "--steps", "1", "--size", "7x5"});
    import({"vortex.x", "vortex_t0.00.q"});
    openWindow();
    lookAtSelection([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().absolutePath().toStdString(), directory().path().string());
    });
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
