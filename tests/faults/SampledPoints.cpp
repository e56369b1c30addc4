#include "faults/SampledPoints.h"

#include <cstdlib>
#include <functional>
#include <iostream>
#include <limits>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace quorvia::testsupport {

namespace {

constexpr std::int64_t samplesOfAKind = 18;

std::string environment(const char* name) {
    const char* const given = std::getenv(name);
    return given != nullptr ? given : "";
}

std::uint64_t seed() {
    static const std::uint64_t chosen = [] {
        const std::string given = environment("PLOT3D_TEST_SEED");
        const std::uint64_t value = given.empty() ? std::random_device()() : std::stoull(given);
        std::cout << "PLOT3D_TEST_SEED=" << value << std::endl; // seen even if the run is ended
        return value;
    }();
    return chosen;
}

/// Out of 1 to what `countPoints` gives; the one that was asked for may lie behind them.
std::set<std::int64_t> pointsToTry(const std::function<std::int64_t()>& countPoints,
                                   const std::string& name) {
    const std::string one = environment("PLOT3D_FAULT");
    if (!one.empty())
        return {std::stoll(one.substr(name.size() + 1))};
    const std::int64_t count = countPoints();
    std::set<std::int64_t> chosen;
    const bool takesAll = environment("PLOT3D_FAULTS") == "all" || count <= samplesOfAKind;
    for (std::int64_t n = 1; n <= count && takesAll; ++n)
        chosen.insert(n);
    std::mt19937_64 random(seed() ^ std::hash<std::string>()(name));
    while (!takesAll && std::ssize(chosen) < samplesOfAKind)
        chosen.insert(1 + static_cast<std::int64_t>(random() % static_cast<std::uint64_t>(count)));
    return chosen;
}

} // namespace

bool isWanted(const std::string& name) {
    const std::string one = environment("PLOT3D_FAULT");
    return one.empty() || one.starts_with(name + "/");
}

void expectWellAtEachPoint(const std::string& name,
                           const std::function<ChildResult_s(std::int64_t n)>& play) {
    const auto countPoints = [&] {
        const ChildResult_s counted = play(std::numeric_limits<std::int64_t>::max());
        EXPECT_EQ(counted.problem, "") << "without a fault";
        EXPECT_GT(counted.count, 0) << "nothing of this kind happens";
        return counted.count;
    };
    for (const std::int64_t n : pointsToTry(countPoints, name)) {
        const ChildResult_s played = play(n);
        if (!played.problem.empty())
            ADD_FAILURE() << played.problem << "\nrepeat with PLOT3D_FAULT=" << name << "/" << n;
    }
}

const Sessions& sessions() {
    static const Sessions all;
    return all;
}

} // namespace quorvia::testsupport
