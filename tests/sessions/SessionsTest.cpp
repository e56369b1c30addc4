// Random sessions on the built library against the model. Each is repeated by its seed alone:
// PLOT3D_TEST_SEED is the first seed, PLOT3D_SESSIONS how many sessions are played from there on;
// PLOT3D_SESSION_FAILURES how many may differ before the test ends.
#include <cstdlib>
#include <iostream>
#include <random>

#include <gtest/gtest.h>

#include "sessions/Generator.h"
#include "sessions/Player.h"

namespace quorvia::sessions {
namespace {

std::uint64_t numberIn(const char* variable, std::uint64_t otherwise) {
    const char* const given = std::getenv(variable);
    return given != nullptr ? std::strtoull(given, nullptr, 10) : otherwise;
}

void report(const Session_s& session, const Difference_s& difference) {
    const Session_s smallest = minimised(session);
    Tally_s ignored;
    const Difference_s last = play(smallest, ignored);
    ADD_FAILURE() << "PLOT3D_TEST_SEED=" << session.seed << " PLOT3D_SESSIONS=1 repeats it\n"
                  << describe(session) << "command " << difference.command << ": "
                  << difference.text << "\nthe shortest that differs:\n"
                  << describe(smallest) << "command " << last.command << ": " << last.text;
}

Tally_s playFrom(std::uint64_t firstSeed, std::uint64_t count) {
    std::uint64_t failuresLeft = numberIn("PLOT3D_SESSION_FAILURES", 3);
    Tally_s tally;
    std::cout << "PLOT3D_TEST_SEED=" << firstSeed << " PLOT3D_SESSIONS=" << count << std::endl;
    for (std::uint64_t seed = firstSeed; seed < firstSeed + count && failuresLeft > 0; ++seed) {
        const Session_s session = makeSession(seed);
        const Difference_s difference = play(session, tally);
        if (difference.command == 0)
            continue;
        report(session, difference);
        --failuresLeft;
    }
    std::cout << tally.loads << " loads, " << tally.refusals << " refused\n";
    return tally;
}

// Half a minute with the random ones; continuous integration plays more. Sessions that were refused
// from end to end would show nothing.
TEST(Sessions, OfKnownSeedsMakeWhatTheModelExpects) {
    constexpr std::uint64_t knownSeeds = 2000;
    const std::uint64_t count = numberIn("PLOT3D_SESSIONS", knownSeeds);
    const Tally_s tally = playFrom(numberIn("PLOT3D_TEST_SEED", 1), count);
    if (count >= knownSeeds) {
        EXPECT_GT(tally.loads, tally.refusals);
    }
}

TEST(Sessions, OfARandomSeedMakeWhatTheModelExpects) {
    if (std::getenv("PLOT3D_TEST_SEED") != nullptr)
        GTEST_SKIP() << "a seed was given";
    constexpr std::uint64_t randomSeeds = 1000;
    constexpr std::uint64_t behindTheKnown = 1000000;
    playFrom(behindTheKnown + std::random_device()(), randomSeeds);
}

TEST(Sessions, FollowFromTheirSeeds) {
    EXPECT_EQ(describe(makeSession(7)), describe(makeSession(7)));
    EXPECT_NE(describe(makeSession(7)), describe(makeSession(8)));
}

} // namespace
} // namespace quorvia::sessions
