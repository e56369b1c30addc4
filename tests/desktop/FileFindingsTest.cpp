// What detection found of each file, in the tree.
#include <atomic>
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include "desktop/DesktopFixture.h"
#include "desktop/Patience.h"

namespace quorvia::host {
namespace {

class FileFindingsTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "2", "--size", "7x5"});
    }
    void openList() {
        treeItem(QStringLiteral("Files"))->setExpanded(true);
        EXPECT_TRUE(comesTrue([this] { return window().findings().isSettled(); }));
    }
    static std::string detailsOf(const QTreeWidgetItem* item) {
        return item != nullptr ? item->text(1).toStdString() : "(no such item)";
    }
    /// Label and text, a line each, as below the file in the tree.
    std::string findingsOf(const char* name) {
        std::string lines;
        const QTreeWidgetItem* item = treeItem(QLatin1String(name));
        for (int line = 0; line < item->childCount(); ++line)
            lines += item->child(line)->text(0).toStdString() + ": " +
                     detailsOf(item->child(line)) + "\n";
        return lines;
    }
};

TEST_F(FileFindingsTest, AreToldOfEachFileOnceTheListIsOpened) {
    import({"vortex.x", "vortex_t0.00.q", "vortex_t0.25.q"});
    EXPECT_EQ(detailsOf(treeItem(QStringLiteral("Files"))), "3 files");
    EXPECT_EQ(detailsOf(treeItem(QStringLiteral("vortex_t0.25.q"))), "");
    openList();
    EXPECT_EQ(detailsOf(treeItem(QStringLiteral("vortex_t0.25.q"))),
              "solution file, style Classic, 2-D, multi-grid");
    EXPECT_EQ(findingsOf("vortex.x"), "encoding: plain binary, little-endian, 32-bit reals\n"
                                      "grid: 7 x 5, 35 points\n"
                                      "bytes: all 292 bytes used\n");
}

TEST_F(FileFindingsTest, AreThoseOfTheImportThatIsThere) {
    import({"vortex.x", "vortex_t0.00.q"});
    openList();
    import({"vortex.x", "vortex_t0.25.q"});
    EXPECT_EQ(treeItem(QStringLiteral("vortex_t0.00.q")), nullptr);
    openList();
    EXPECT_NE(findingsOf("vortex_t0.25.q"), "");
}

TEST_F(FileFindingsTest, TellOfAFileThatIsGone) {
    import({"vortex.x", "vortex_t0.00.q"});
    std::filesystem::remove(file("vortex_t0.00.q"));
    openList();
    EXPECT_NE(findingsOf("vortex_t0.00.q").find("problem: "), std::string::npos);
}

TEST_F(FileFindingsTest, AnswerNobodyWhileAFileIsLookedAt) {
    import({"vortex.x", "vortex_t0.00.q"});
    std::atomic<bool> isHeld = false;
    std::atomic<bool> isLetGo = false;
    window().findings().looking().setObserver([&](const plot3d::Progress&) {
        isHeld = true;
        while (!isLetGo)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    });
    treeItem(QStringLiteral("Files"))->setExpanded(true);
    ASSERT_TRUE(comesTrue([&] { return isHeld.load(); }));
    import({"vortex.x", "vortex_t0.25.q"});
    EXPECT_EQ(window().tree().dataSet()->zones.size(), 1U);
    isLetGo = true;
    EXPECT_TRUE(comesTrue([this] { return window().findings().isSettled(); }));
    EXPECT_EQ(findingsOf("vortex_t0.25.q"), "");
}

} // namespace
} // namespace quorvia::host
