// File > Open Recent, and the folder in which a file selection opens.
#include <filesystem>

#include <gtest/gtest.h>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"

namespace quorvia::host {
namespace {

class RecentMenuTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "3", "--size", "7x5"});
    }
    RecentMenu& menu() { return *window().findChild<RecentMenu*>(QStringLiteral("recent")); }
    /// Those of files.
    std::vector<QAction*> entries() {
        std::vector<QAction*> found;
        for (QAction* entry : menu().actions()) {
            if (entry->isSeparator())
                break;
            found.push_back(entry);
        }
        return found;
    }
    /// Opened and closed; what it has looked for is known then.
    void lookAtMenu(const std::function<bool()>& isAsExpected) {
        menu().popup(window().mapToGlobal(QPoint(0, 0)));
        EXPECT_TRUE(comesTrue(isAsExpected));
        menu().close();
    }
    void chooseEntry(std::size_t place) {
        entries().at(place)->trigger();
        waitUntilDone();
    }
    std::size_t zoneCount() { return window().tree().dataSet()->zones.size(); }
};

TEST_F(RecentMenuTest, IsGreyedUntilSomethingWasImported) {
    EXPECT_FALSE(menu().menuAction()->isEnabled());
    import({"vortex.x", "vortex_t0.00.q"});
    EXPECT_TRUE(menu().menuAction()->isEnabled());
}

TEST_F(RecentMenuTest, HoldsTheSetsOfFilesTheLastOneFirst) {
    import({"vortex.x", "vortex_t0.00.q"});
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
    import({"vortex.x", "vortex_t0.00.q"});
    ASSERT_EQ(entries().size(), 2U);
    EXPECT_EQ(entries()[0]->text().toStdString(),
              "&1  vortex.x and 1 more file in " + directory().path().string());
    EXPECT_TRUE(entries()[1]->text().startsWith(QLatin1String("&2  vortex.x and 2 more files")));
}

TEST_F(RecentMenuTest, OpensASetInALaterRun) {
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
    openWindow();
    chooseEntry(0);
    ASSERT_NE(window().tree().dataSet(), nullptr);
    EXPECT_EQ(zoneCount(), 2U);
}

TEST_F(RecentMenuTest, OpensWhatWasAppendedAsWell) {
    import({"vortex.x", "vortex_t0.00.q"});
    import({"vortex.x", "vortex_t0.25.q"}, true);
    choose(QStringLiteral("Discard Data Set"));
    chooseEntry(0);
    EXPECT_EQ(zoneCount(), 2U);
}

TEST_F(RecentMenuTest, HoldsNoMoreThanTen) {
    for (int number = 0; number < 11; ++number) {
        const std::string folder = directory().file("case" + std::to_string(number));
        std::filesystem::create_directory(folder);
        writeSample({"vortex", "--steps", "1", "--size", "3x2"}, folder);
        import({"case" + std::to_string(number) + "/vortex.x"});
    }
    EXPECT_EQ(entries().size(), 10U);
    EXPECT_TRUE(entries().front()->text().endsWith(QLatin1String("case10")));
}

TEST_F(RecentMenuTest, EntryWhoseFilesAreGoneIsGreyedAndSaysWhich) {
    import({"vortex.x", "vortex_t0.00.q"});
    std::filesystem::remove(file("vortex_t0.00.q"));
    lookAtMenu([this] { return !entries()[0]->isEnabled(); });
    EXPECT_EQ(entries()[0]->toolTip().toStdString(), file("vortex_t0.00.q") + " is gone.");
    directory().write("vortex_t0.00.q", "there again");
    lookAtMenu([this] { return entries()[0]->isEnabled(); });
}

TEST_F(RecentMenuTest, FailedImportLeavesNoEntry) {
    directory().write("broken.x", "no numbers");
    person().pickFiles(files({"broken.x"}));
    person().answerBox();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_TRUE(entries().empty());
}

TEST_F(RecentMenuTest, IsEmptiedForGood) {
    import({"vortex.x", "vortex_t0.00.q"});
    choose(QStringLiteral("Clear List"));
    EXPECT_TRUE(entries().empty());
    EXPECT_FALSE(menu().menuAction()->isEnabled());
    openWindow();
    EXPECT_TRUE(entries().empty());
}

class StartFolderTest : public RecentMenuTest {
protected:
    /// Of the next file selection of the menu.
    std::string folderOf(const char* actionText) {
        std::string folder;
        person().then("a file selection to look at", [&folder] {
            auto* dialog = visibleSelection();
            if (dialog == nullptr)
                return false;
            folder = dialog->directory().absolutePath().toStdString();
            QTest::keyClick(dialog, Qt::Key_Escape);
            return true;
        });
        choose(QLatin1String(actionText));
        return folder;
    }
};

TEST_F(StartFolderTest, IsThatOfTheFilesOfTheCommandLine) {
    openWindow(PLOT3D_ADDON_PATH, files({"vortex.x", "vortex_t0.00.q"}));
    EXPECT_EQ(folderOf("PLOT3D Loader..."), directory().path().string());
}

TEST_F(StartFolderTest, IsThatOfTheLastImportHoweverItCame) {
    import({"vortex.x", "vortex_t0.00.q"});
    const std::string elsewhere = directory().file("elsewhere");
    std::filesystem::create_directory(elsewhere);
    writeSample({"vortex", "--steps", "1", "--size", "7x5"}, elsewhere);
    import({"elsewhere/vortex.x", "elsewhere/vortex_t0.00.q"});
    EXPECT_EQ(folderOf("PLOT3D Loader..."), elsewhere);
    chooseEntry(1);
    EXPECT_EQ(folderOf("PLOT3D Loader..."), directory().path().string());
}

} // namespace
} // namespace quorvia::host
