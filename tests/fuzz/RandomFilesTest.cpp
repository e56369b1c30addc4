// Loads of damaged files, linked in so that sanitizers see everything. The rounds follow from the
// seed alone: PLOT3D_TEST_SEED repeats a run, PLOT3D_FUZZ_SECONDS makes it longer.
#include <chrono>
#include <cstdlib>
#include <iostream>

#include <gtest/gtest.h>

#include "FuzzInput.h"
#include "RandomFiles.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {
namespace {

using plot3dwriter::FileKind_e;

std::uint64_t chooseSeed() {
    const char* const given = std::getenv("PLOT3D_TEST_SEED");
    return given != nullptr ? std::strtoull(given, nullptr, 10) : std::random_device()();
}

std::chrono::seconds budget() {
    const char* const given = std::getenv("PLOT3D_FUZZ_SECONDS");
    return std::chrono::seconds(given != nullptr ? std::strtol(given, nullptr, 10) : 5);
}

void run(const FuzzInput_s& input) {
    const std::string bytes = toBytes(input);
    EXPECT_EQ(
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()),
        0);
}

FuzzInput_s soundInput(RandomFiles& files) {
    FuzzInput_s input;
    files.chooseShape();
    input.grid = files.file(FileKind_e::Grid);
    input.fileChoice = static_cast<std::uint8_t>(files.below(3));
    if (input.fileChoice == 1)
        input.other = files.file(files.solutionKind());
    if (input.fileChoice == 2)
        input.other = files.file(FileKind_e::Function);
    return input;
}

void damageInput(RandomFiles& files, FuzzInput_s& input) {
    // Half of the readings are by trial, as most users' are.
    input.readingChoice = static_cast<std::uint8_t>(
        files.below(2) == 0 ? files.below(4) : files.below(readingChoiceCount));
    const bool isGridDamaged = input.fileChoice == 0 || files.below(3) == 0;
    files.damage(isGridDamaged ? input.grid : input.other);
}

TEST(RandomFiles, DamagedFilesDoNoHarm) {
    const std::uint64_t seed = chooseSeed();
    std::cout << "PLOT3D_TEST_SEED=" << seed << std::endl; // seen even if the program is ended
    RandomFiles files(seed);
    std::int64_t rounds = 0;
    const auto end = std::chrono::steady_clock::now() + budget();
    for (; std::chrono::steady_clock::now() < end; ++rounds) {
        FuzzInput_s input = soundInput(files);
        damageInput(files, input);
        run(input);
    }
    std::cout << rounds << " rounds\n";
    EXPECT_GT(rounds, 0);
}

// A target that refused everything would find nothing. A few sound files are ambiguous and fall to
// another reading than they were written in.
TEST(RandomFiles, MostSoundFilesLoad) {
    constexpr int rounds = 100;
    RandomFiles files(1);
    int loaded = 0;
    for (int round = 0; round < rounds; ++round)
        loaded += loadInput(soundInput(files)) ? 1 : 0;
    EXPECT_GT(loaded, rounds * 3 / 4);
}

// What fuzzers begin with.
TEST(FuzzTarget, TakesAnyBytes) {
    EXPECT_EQ(LLVMFuzzerTestOneInput(nullptr, 0), 0);
    const std::uint8_t bytes[] = {1, 44, 255, 255, 0};
    EXPECT_EQ(LLVMFuzzerTestOneInput(bytes, sizeof(bytes)), 0);
}

TEST(FuzzInput, SurvivesItsWayThroughBytes) {
    const std::string bytes = toBytes({2, 7, "grid", "other"});
    const FuzzInput_s input =
        fromBytes(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    EXPECT_EQ(toBytes(input), bytes);
    EXPECT_EQ(input.other, "other");
}

} // namespace
} // namespace quorvia::testsupport
