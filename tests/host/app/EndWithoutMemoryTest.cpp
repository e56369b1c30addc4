#include "app/EndWithoutMemory.h"

#include <csignal>
#include <new>
#include <stdexcept>
#include <type_traits>

#include <gtest/gtest.h>

namespace quorvia::host {
namespace {

template <typename Failure>
void fail() {
    if constexpr (std::is_same_v<Failure, std::bad_alloc>)
        throw std::bad_alloc();
    else
        throw Failure("another");
}

/// As a destructor that throws.
void failWhereNothingMayBeThrown(void (*work)()) noexcept {
    const EndWithoutMemory end;
    work();
}

TEST(EndWithoutMemory, IsAnErrorLineAndAnExitCode) {
    EXPECT_EXIT(failWhereNothingMayBeThrown(fail<std::bad_alloc>), ::testing::ExitedWithCode(1),
                "quorhost: error: out of memory");
}

TEST(EndWithoutMemory, LeavesOtherEndsAsTheyAre) {
    EXPECT_EXIT(failWhereNothingMayBeThrown(fail<std::runtime_error>),
                ::testing::KilledBySignal(SIGABRT), "");
}

} // namespace
} // namespace quorvia::host
