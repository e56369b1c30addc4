// Runs benchmarks in pairs and prints each ratio beside its target. Both sides are measured in one
// run, their repetitions interleaved, so that a machine that slows down slows both.
#pragma once

#include <string>
#include <vector>

namespace quorvia::benchmarks {

/// How two times become the number that is claimed.
enum class Ratio_e {
    SpeedAtLeast, // reference time / our time must reach the target
    CostAtMost    // our time / reference time must not pass the target
};

/// Processor time is that of the thread that measures: for work of one thread, and the same on a
/// busy machine.
enum class Clock_e { Wall, Processor };

struct RatioClaim_s {
    std::string claim; // what is claimed, in words
    std::string ours;  // name of a registered benchmark
    std::string reference;
    Ratio_e ratio;
    double target;
    Clock_e clock = Clock_e::Wall;
};

/// Runs all registered benchmarks and prints machine, compiler, spread and ratios. Gives the exit
/// code of a program: 0 also when a target is missed, since these are measurements and no tests.
///
/// What this and the following print beside a target goes as a row of a Markdown table to the end
/// of the file that the environment variable PLOT3D_BENCHMARK_ROWS names, if there is one.
int runAndCompare(int argc, char** argv, const std::vector<RatioClaim_s>& claims);

/// Prints a measured count beside its target, for claims that are no times.
void printCount(const std::string& claim, double measured, double target, const std::string& unit);

/// Prints measured seconds beside the target.
void printSeconds(const std::string& claim, double measured, double target);

} // namespace quorvia::benchmarks
