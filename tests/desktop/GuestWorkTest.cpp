// Work on the guest's thread, and what is told when it ends badly.
#include "desktop/guest/GuestWork.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "desktop/Patience.h"

namespace quorvia::host {
namespace {

/// What is told afterwards.
std::string failureOf(GuestWork::Work work) {
    GuestWork guest;
    std::string told = "nothing yet";
    guest.start(std::move(work), [&told](const std::string& failure) { told = failure; });
    EXPECT_TRUE(comesTrue([&guest] { return !guest.isRunning(); }));
    return told;
}

TEST(GuestWork, TellsNothingOfWorkThatEndsAsItShould) {
    EXPECT_EQ(failureOf([] {}), "");
}

TEST(GuestWork, TellsWhatWasThrown) {
    EXPECT_EQ(failureOf([] { throw std::runtime_error("no more paper"); }), "no more paper");
    EXPECT_EQ(failureOf([] { throw std::bad_alloc(); }), "There is not enough memory.");
}

TEST(GuestWork, TellsOfAnExceptionOfAnyOtherKind) {
    EXPECT_EQ(failureOf([] { throw 7; }), "The add-on has thrown an exception.");
}

} // namespace
} // namespace quorvia::host
