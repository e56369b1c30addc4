// What `quorhost load --no-values --json` costs for files of many small grids with eight fields
// each: processor time and the most memory, of the whole program. The lowest of a few runs counts,
// since a busy machine adds to the time and never takes from it.
#include <algorithm>
#include <array>
#include <cstdint>
#include <fstream>
#include <limits>
#include <string>
#include <vector>

#include <fcntl.h>
#include <fmt/core.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include "support/RatioReport.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

struct Cost_s {
    double seconds = std::numeric_limits<double>::infinity(); // of the processor
    double bytes = 0;                                         // at the highest
};

double secondsOf(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

template <typename Number>
void put(std::ofstream& file, const std::vector<Number>& numbers) {
    file.write(reinterpret_cast<const char*>(numbers.data()),
               static_cast<std::streamsize>(numbers.size() * sizeof(Number)));
}

/// Plain binary, grids of 2 x 2 x 2 points; `reals` of each grid behind the header.
void writeFile(const std::string& name, std::int32_t grids, std::size_t reals) {
    std::ofstream file(name, std::ios::binary);
    put(file, std::vector<std::int32_t>{grids});
    put(file, std::vector<std::int32_t>(static_cast<std::size_t>(grids) * 3, 2));
    for (std::int32_t grid = 0; grid < grids; ++grid)
        put(file, std::vector<float>(reals, 0.5F));
}

/// Infinite seconds if the program can't be started or fails.
Cost_s runOnce(std::vector<std::string> command) {
    std::vector<char*> arguments;
    for (std::string& argument : command)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);
    pid_t child = 0;
    const int failure =
        posix_spawn(&child, arguments[0], &actions, nullptr, arguments.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int status = 0;
    rusage used = {};
    if (failure != 0 || wait4(child, &status, 0, &used) != child || status != 0)
        return {};
    constexpr double kilobyte = 1024;
    return {secondsOf(used.ru_utime) + secondsOf(used.ru_stime),
            static_cast<double>(used.ru_maxrss) * kilobyte};
}

void measure(std::int32_t zones, double targetMilliseconds) {
    constexpr int runs = 5;
    constexpr double targetBytes = 4096;
    const testsupport::TemporaryDirectory directory;
    constexpr std::size_t points = 8;
    writeFile(directory.file("many.x"), zones, 3 * points);
    writeFile(directory.file("many.q"), zones, 4 + 5 * points);
    Cost_s best;
    for (int run = 0; run < runs; ++run) {
        const Cost_s cost = runOnce({QUORHOST_PROGRAM, "load", "--no-values", "--json",
                                     directory.file("outcome.json"), directory.file("many.x"),
                                     directory.file("many.q")});
        best = cost.seconds < best.seconds ? cost : best;
    }
    benchmarks::printCount(fmt::format("Processor time of the load of {} zones", zones),
                           best.seconds * 1000, targetMilliseconds, "ms");
    benchmarks::printCount(fmt::format("Highest memory for each of {} zones", zones),
                           best.bytes / zones, targetBytes, "bytes");
}

} // namespace

int main() {
    measure(20'000, 500);
    measure(100'000, 2500);
    return 0;
}
