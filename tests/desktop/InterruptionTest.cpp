// Long work: the windows stay awake, and Cancel stops it.
#include <chrono>
#include <deque>
#include <mutex>
#include <thread>

#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

#include "desktop/DesktopFixture.h"

namespace quorvia::host {
namespace {

constexpr bool inPlace = false; // of the data set that is there, rather than appended
constexpr int allSteps = 40;

/// A series of files whose load stands still wherever the person waits for it, until the person has
/// acted: nobody is late, however busy the machine is.
class InterruptionTest : public DesktopTest {
protected:
    void SetUp() override {
        DesktopTest::SetUp();
        writeSample({"vortex", "--steps", "40", "--size", "7x5"});
    }
    void standStillForThePerson() {
        const auto observer = host().settings().progressObserver;
        host().settings().progressObserver = [this, observer](const ProgressState_s& state) {
            observer(state);
            while (isAwaited(state) && !host().interruptRequested())
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        };
    }
    void pickSeries(bool append = inPlace, int steps = allSteps) {
        constexpr bool withoutDialog = false;
        person().pickFiles(series(steps), withoutDialog, append);
    }
    void pickSeriesWithDialog() {
        constexpr bool advanced = true;
        constexpr int fewSteps = 9;
        person().pickFiles(series(fewSteps), advanced);
    }
    std::vector<std::string> series(int steps) {
        standStillForThePerson();
        std::vector<std::string> names = {"vortex.x"};
        for (int step = 0; step < steps; ++step)
            names.push_back("vortex_t" + std::to_string(step / 4) + "." +
                            std::to_string(step % 4 * 25) + (step % 4 == 0 ? "0" : "") + ".q");
        return files(names);
    }
    /// Once its text contains `text`.
    void whenProgressShows(const std::function<void(ProgressWindow&)>& act, const char* text = "") {
        await(text);
        person().then("the progress window", [this, act, text] {
            ProgressWindow& progress = window().session().progressWindow();
            if (!progress.isVisible() ||
                !progress.findChild<QLabel*>()->text().contains(QLatin1String(text)))
                return false;
            act(progress);
            hasActed();
            return true;
        });
    }
    void cancelWhenProgressShows(const char* text = "") {
        whenProgressShows(
            [](ProgressWindow& progress) { click(*progress.findChild<QPushButton*>()); }, text);
    }
    QString status() { return window().statusBar()->currentMessage(); }

private:
    void await(const char* text) {
        const std::lock_guard lock(mutex_);
        awaited_.emplace_back(text);
    }
    void hasActed() {
        const std::lock_guard lock(mutex_);
        awaited_.pop_front();
    }
    /// On the guest's thread.
    bool isAwaited(const ProgressState_s& state) {
        const std::lock_guard lock(mutex_);
        return state.open && !awaited_.empty() &&
               state.text.find(awaited_.front()) != std::string::npos;
    }

    std::mutex mutex_;
    std::deque<std::string> awaited_; // texts that the person still waits for
};

TEST_F(InterruptionTest, CancelStopsALongLoad) {
    pickSeries();
    whenProgressShows([](ProgressWindow& progress) {
        click(*progress.findChild<QPushButton*>());
        EXPECT_FALSE(progress.findChild<QPushButton*>()->isEnabled());
    });
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: no data set"));
    EXPECT_FALSE(window().session().progressWindow().isVisible());
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(InterruptionTest, EscapeStopsALongLoad) {
    pickSeries();
    whenProgressShows([](ProgressWindow& progress) { QTest::keyClick(&progress, Qt::Key_Escape); });
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: no data set"));
}

TEST_F(InterruptionTest, CancelledAppendLeavesTheDataSetThatWasThere) {
    import({"vortex.x", "vortex_t0.25.q"});
    constexpr bool appending = true;
    constexpr int fewSteps = 9;
    pickSeries(appending, fewSteps);
    cancelWhenProgressShows("Setting up Zone");
    person().answerBox();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: 1 zone, 6 variables"));
    EXPECT_EQ(window().tree().dataSet()->zones.front().name, "vortex_t0.25.q:1");
}

TEST_F(InterruptionTest, CancelledAppendLeavesTheRangesThatWereFetched) {
    import({"vortex.x", "vortex_t0.25.q"});
    choose(QStringLiteral("Fetch All Values"));
    constexpr bool appending = true;
    pickSeries(appending);
    cancelWhenProgressShows();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: 1 zone, 6 variables"));
    for (const FieldOutcome_s& field : window().tree().dataSet()->zones.front().fields)
        EXPECT_TRUE(field.statistics.has_value()) << field.variable;
}

TEST_F(InterruptionTest, ReplacementThatIsCancelledEarlyLeavesTheDataSetThatWasThere) {
    import({"vortex.x", "vortex_t0.25.q"});
    pickSeries();
    cancelWhenProgressShows();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: 1 zone, 6 variables"));
}

TEST_F(InterruptionTest, ReplacementThatIsCancelledAmongItsZonesLeavesNoDataSet) {
    import({"vortex.x", "vortex_t0.25.q"});
    constexpr int fewSteps = 9;
    pickSeries(inPlace, fewSteps);
    cancelWhenProgressShows("Setting up Zone");
    person().answerBox();
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(person().boxTexts(), std::vector<std::string>{"Plot3D Data load interrupted"});
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: no data set"));
    EXPECT_EQ(window().tree().dataSet(), nullptr);
}

TEST_F(InterruptionTest, NextLoadIsNotStopped) {
    pickSeries();
    cancelWhenProgressShows();
    choose(QStringLiteral("PLOT3D Loader..."));
    import({"vortex.x", "vortex_t0.25.q"});
    EXPECT_NE(window().tree().dataSet(), nullptr);
}

TEST_F(InterruptionTest, OkLoadsAfterALoadFromTheDialogWasCancelled) {
    pickSeriesWithDialog();
    person().clickInDialog(QStringLiteral("OK"));
    cancelWhenProgressShows("Setting up Zone");
    person().answerBox();
    person().clickInDialog(QStringLiteral("OK"));
    whenProgressShows(
        [](ProgressWindow& progress) {
            EXPECT_TRUE(progress.findChild<QPushButton*>()->isEnabled());
        },
        "Setting up Zone");
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(person().boxTexts(), std::vector<std::string>{"Plot3D Data load interrupted"});
    EXPECT_EQ(status(), QStringLiteral("Imported: 9 zones, 6 variables"));
}

TEST_F(InterruptionTest, SecondLoadFromTheDialogCanBeCancelledToo) {
    pickSeriesWithDialog();
    for (int load = 0; load < 2; ++load) {
        person().clickInDialog(QStringLiteral("OK"));
        whenProgressShows(
            [](ProgressWindow& progress) {
                click(*progress.findChild<QPushButton*>());
                EXPECT_EQ(progress.findChild<QLabel*>()->text(), QStringLiteral("Cancelling..."));
            },
            "Setting up Zone");
        person().answerBox();
    }
    person().clickInDialog(QStringLiteral("Cancel"));
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_EQ(person().boxTexts(), std::vector<std::string>(2, "Plot3D Data load interrupted"));
    EXPECT_EQ(status(), QStringLiteral("Import cancelled: no data set"));
}

TEST_F(InterruptionTest, WindowThatIsClosedMeanwhileClosesOnceTheLoadHasStopped) {
    pickSeries();
    whenProgressShows([this](ProgressWindow&) {
        window().close();
        EXPECT_TRUE(window().isVisible());
    });
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(host().frame().dataSet(), nullptr);
}

TEST_F(InterruptionTest, NothingElseCanBeStartedMeanwhile) {
    pickSeries();
    whenProgressShows([this](ProgressWindow& progress) {
        EXPECT_FALSE(action(QStringLiteral("PLOT3D Loader...")).isEnabled());
        EXPECT_FALSE(action(QStringLiteral("Fetch All Values")).isEnabled());
        click(*progress.findChild<QPushButton*>());
    });
    choose(QStringLiteral("PLOT3D Loader..."));
    EXPECT_TRUE(action(QStringLiteral("PLOT3D Loader...")).isEnabled());
}

TEST(ProgressFeed, GivesTheLastStateOnce) {
    ProgressFeed feed;
    feed.put({0.25, "first", true});
    feed.put({0.5, "second", true});
    const std::optional<ProgressState_s> state = feed.take();
    ASSERT_TRUE(state.has_value());
    EXPECT_EQ(state->text, "second");
    EXPECT_FALSE(feed.take().has_value());
}

} // namespace
} // namespace quorvia::host
