// What the user did at a dialog, and when the guest gets it.
#include "session/ActionQueue.h"

#include <thread>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

constexpr std::int64_t kLaunch = 11;

std::int32_t pressed(const DialogAction& action) {
    return std::get<PressButton>(action).button;
}

TEST(ActionQueue, GivesActionsInTheirOrder) {
    ActionQueue queue;
    queue.push(PressButton{2}, kLaunch);
    queue.push(PressButton{3}, kLaunch);
    EXPECT_EQ(pressed(queue.wait(kLaunch)), 2);
    EXPECT_EQ(pressed(*queue.take(kLaunch)), 3);
    EXPECT_FALSE(queue.take(kLaunch).has_value());
}

TEST(ActionQueue, WaitsForAnActionFromAnotherThread) {
    ActionQueue queue;
    std::thread user([&queue] { queue.push(PressButton{5}, kLaunch); });
    EXPECT_EQ(pressed(queue.wait(kLaunch)), 5);
    user.join();
}

TEST(ActionQueue, ForgetsWhatWasCleared) {
    ActionQueue queue;
    queue.push(PressButton{2}, kLaunch);
    queue.clear();
    EXPECT_FALSE(queue.take(kLaunch).has_value());
}

TEST(ActionQueue, PassesOverWhatWasDoneAtTheWindowOfAnEarlierLaunch) {
    ActionQueue queue;
    queue.push(PressButton{2}, kLaunch - 1);
    EXPECT_FALSE(queue.take(kLaunch).has_value());
    queue.push(PressButton{3}, kLaunch - 1);
    queue.push(PressButton{5}, kLaunch);
    EXPECT_EQ(pressed(queue.wait(kLaunch)), 5);
}

TEST(ActionQueue, CountsWhatWasEverPushed) {
    ActionQueue queue;
    queue.push(PressButton{2}, kLaunch);
    queue.push(PressButton{3}, kLaunch);
    queue.clear();
    EXPECT_EQ(queue.pushedCount(), 2);
}

TEST(ActionQueue, GivesCancelOnceItHasEnded) {
    ActionQueue queue;
    queue.push(PressButton{2}, kLaunch);
    queue.endForever();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(std::get<PressDialogButton>(queue.wait(kLaunch)).button, DialogButton::Cancel);
}

} // namespace
} // namespace quorvia::host
