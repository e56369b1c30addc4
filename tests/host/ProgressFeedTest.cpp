// Progress on its way from the guest's thread to the windows'.
#include "session/ProgressFeed.h"

#include <optional>
#include <string>
#include <thread>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

TEST(ProgressFeed, GivesTheLastStateOnce) {
    ProgressFeed feed;
    feed.put({0.25, "one", true});
    feed.put({0.5, "two", true});
    EXPECT_EQ(feed.take().value().text, "two");
    EXPECT_FALSE(feed.take().has_value());
}

TEST(ProgressFeed, GivesNothingBeforeTheFirstState) {
    EXPECT_FALSE(ProgressFeed().take().has_value());
}

TEST(ProgressFeed, TakesStatesFromAnotherThread) {
    constexpr int stateCount = 1009;
    ProgressFeed feed;
    std::thread guest([&feed] {
        for (int state = 1; state <= stateCount; ++state)
            feed.put({static_cast<double>(state), std::to_string(state), true});
    });
    double shown = 0;
    while (shown < stateCount) {
        const std::optional<ProgressState_s> state = feed.take();
        if (!state) {
            std::this_thread::yield();
            continue;
        }
        EXPECT_GT(state->fraction, shown);
        EXPECT_EQ(std::to_string(static_cast<int>(state->fraction)), state->text);
        shown = state->fraction;
    }
    guest.join();
}

} // namespace
} // namespace quorvia::host
