#include "desktop/ActionQueue.h"

#include <thread>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

std::int32_t pressed(const DialogAction& action) {
    return std::get<PressButton>(action).button;
}

TEST(ActionQueue, GivesActionsInTheirOrder) {
    ActionQueue queue;
    queue.push(PressButton{2});
    queue.push(PressButton{3});
    EXPECT_EQ(pressed(queue.wait()), 2);
    EXPECT_EQ(pressed(*queue.take()), 3);
    EXPECT_FALSE(queue.take().has_value());
}

TEST(ActionQueue, WaitsForAnActionFromAnotherThread) {
    ActionQueue queue;
    std::thread user([&queue] { queue.push(PressButton{5}); });
    EXPECT_EQ(pressed(queue.wait()), 5);
    user.join();
}

TEST(ActionQueue, ForgetsWhatWasCleared) {
    ActionQueue queue;
    queue.push(PressButton{2});
    queue.clear();
    EXPECT_FALSE(queue.take().has_value());
}

TEST(ActionQueue, CountsWhatWasEverPushed) {
    ActionQueue queue;
    queue.push(PressButton{2});
    queue.push(PressButton{3});
    queue.clear();
    EXPECT_EQ(queue.pushedCount(), 2);
}

TEST(ActionQueue, GivesCancelOnceItHasEnded) {
    ActionQueue queue;
    queue.push(PressButton{2});
    queue.endForever();
    for (int time = 0; time < 2; ++time)
        EXPECT_EQ(std::get<PressDialogButton>(queue.wait()).button, DialogButton::Cancel);
}

} // namespace
} // namespace quorvia::host
