// What the user did at a dialog, and when the guest gets it.
#include "session/ActionQueue.h"

#include <thread>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

constexpr std::int64_t launch = 11;

std::int32_t pressed(const DialogAction& action) {
    return std::get<PressButton_s>(action).button;
}

TEST(ActionQueue, GivesActionsInTheirOrder) {
    ActionQueue queue;
    queue.push(PressButton_s{2}, launch);
    queue.push(PressButton_s{3}, launch);
    EXPECT_EQ(pressed(queue.wait(launch)), 2);
    EXPECT_EQ(pressed(*queue.take(launch)), 3);
    EXPECT_FALSE(queue.take(launch).has_value());
}

TEST(ActionQueue, WaitsForAnActionFromAnotherThread) {
    ActionQueue queue;
    std::thread user([&queue] { queue.push(PressButton_s{5}, launch); });
    EXPECT_EQ(pressed(queue.wait(launch)), 5);
    user.join();
}

TEST(ActionQueue, ForgetsWhatWasCleared) {
    ActionQueue queue;
    queue.push(PressButton_s{2}, launch);
    queue.clear();
    EXPECT_FALSE(queue.take(launch).has_value());
}

TEST(ActionQueue, PassesOverWhatWasDoneAtTheWindowOfAnEarlierLaunch) {
    ActionQueue queue;
    queue.push(PressButton_s{2}, launch - 1);
    EXPECT_FALSE(queue.take(launch).has_value());
    queue.push(PressButton_s{3}, launch - 1);
    queue.push(PressButton_s{5}, launch);
    EXPECT_EQ(pressed(queue.wait(launch)), 5);
}

TEST(ActionQueue, CountsWhatWasEverPushed) {
    ActionQueue queue;
    queue.push(PressButton_s{2}, launch);
    queue.push(PressButton_s{3}, launch);
    queue.clear();
    EXPECT_EQ(queue.pushedCount(), 2);
}

TEST(ActionQueue, GivesCancelOnceItHasEnded) {
    ActionQueue queue;
    queue.push(PressButton_s{2}, launch);
    queue.endForever();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(std::get<PressDialogButton_s>(queue.wait(launch)).button, DialogButton_e::Cancel);
}

} // namespace
} // namespace quorvia::host
