// Random sessions on the built library against the model. PLOT3D_TEST_SEED repeats one session or
// begins elsewhere; PLOT3D_SESSIONS says how many are played.
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

void playFrom(std::uint64_t firstSeed, std::uint64_t count) {
    std::int64_t loads = 0;
    std::int64_t refusals = 0;
    std::uint64_t failures = 0;
    const std::uint64_t enough = numberIn("PLOT3D_SESSION_FAILURES", 3);
    for (std::uint64_t seed = firstSeed; seed < firstSeed + count && failures < enough; ++seed) {
        const Session_s session = makeSession(seed);
        const Difference_s difference = play(session, loads, refusals);
        if (difference.command == 0)
            continue;
        ++failures;
        const Session_s smallest = minimised(session);
        std::int64_t ignored = 0;
        const Difference_s last = play(smallest, ignored, ignored);
        ADD_FAILURE() << "PLOT3D_TEST_SEED=" << seed << " PLOT3D_SESSIONS=1, session "
                      << seed - firstSeed + 1 << " of this run\n"
                      << describe(session) << "command " << difference.command << ": "
                      << difference.text << "\nthe shortest that differs:\n"
                      << describe(smallest) << "command " << last.command << ": " << last.text;
    }
    std::cout << loads << " loads, " << refusals << " refused" << std::endl;
}

TEST(Sessions, KnownSeedsMakeWhatTheModelExpects) {
    playFrom(numberIn("PLOT3D_TEST_SEED", 1), numberIn("PLOT3D_SESSIONS", 1000));
}

} // namespace
} // namespace quorvia::sessions
