#include "analysis/fields/ParallelWork.h"

#include <atomic>
#include <stdexcept>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

namespace plot3d::analysis {
namespace {

class ParallelWork : public testing::TestWithParam<int> {};

TEST_P(ParallelWork, DoesEachIndexOnce) {
    std::vector<std::atomic<int>> done(1000);
    inParallel(done.size(), GetParam(), [&](std::size_t index, std::size_t) { ++done[index]; });
    for (const auto& count : done)
        EXPECT_EQ(count, 1);
}

TEST_P(ParallelWork, NumbersItsWorkersBelowTheCountOfThreads) {
    std::atomic<std::size_t> highest = 0;
    inParallel(1000, GetParam(), [&](std::size_t, std::size_t worker) {
        for (std::size_t seen = highest; worker > seen;)
            highest.compare_exchange_weak(seen, worker);
    });
    EXPECT_LT(highest, static_cast<std::size_t>(GetParam()));
}

TEST_P(ParallelWork, ThrowsWhatTheWorkThrows) {
    const auto failing = [](std::size_t index, std::size_t) {
        if (index >= 3)
            throw std::runtime_error("from three on");
    };
    EXPECT_THROW(inParallel(1000, GetParam(), failing), std::runtime_error);
}

TEST_P(ParallelWork, EndsWhenAStopIsAskedFor) {
    std::stop_source stop;
    const auto stopping = [&](std::size_t, std::size_t) { stop.request_stop(); };
    try {
        inParallel(1000, GetParam(), stopping, {{}, stop.get_token()});
        FAIL() << "was not stopped";
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Interrupted);
    }
}

INSTANTIATE_TEST_SUITE_P(Threads, ParallelWork, testing::Values(1, 2, 7));

TEST(ParallelWork, TellsTheShareThatIsDone) {
    std::vector<double> shares;
    const auto note = [&](double share) { shares.push_back(share); };
    inParallel(4, 1, [](std::size_t, std::size_t) {}, {note, {}});
    EXPECT_EQ(shares, (std::vector<double>{0.25, 0.5, 0.75, 1}));
}

TEST(ParallelWork, OfNothingIsDoneAtOnce) {
    inParallel(0, 2, [](std::size_t, std::size_t) { FAIL(); });
}

} // namespace
} // namespace plot3d::analysis
