#include "support/RatioReport.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <map>

#include <benchmark/benchmark.h>
#include <fmt/core.h>

namespace quorvia::benchmarks {

namespace {

/// Keeps the times of every repetition by the benchmark's name.
class CollectingReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs)
            if (run.run_type == Run::RT_Iteration && !run.error_occurred)
                keep(run);
        ConsoleReporter::ReportRuns(runs);
    }

    /// Sorted, in seconds for one iteration; empty if the benchmark did not run.
    std::vector<double> seconds(const std::string& name, Clock_e clock) const {
        const auto found = seconds_.find({name, clock});
        std::vector<double> sorted =
            found == seconds_.end() ? std::vector<double>() : found->second;
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

private:
    void keep(const Run& run) {
        const auto iterations = static_cast<double>(run.iterations);
        const std::string& name = run.run_name.function_name;
        seconds_[{name, Clock_e::Wall}].push_back(run.real_accumulated_time / iterations);
        seconds_[{name, Clock_e::Processor}].push_back(run.cpu_accumulated_time / iterations);
    }

    std::map<std::pair<std::string, Clock_e>, std::vector<double>> seconds_;
};

struct Row_s {
    std::string claim;
    std::string measured;
    std::string target;
    bool isMet = false;
    std::string ours;
    std::string reference;
};

const char* verdict(bool isMet) {
    return isMet ? "met" : "MISSED";
}

void addRow(const Row_s& row) {
    const char* const file = std::getenv("PLOT3D_BENCHMARK_ROWS");
    if (file == nullptr)
        return;
    std::ofstream rows(file, std::ios::app);
    rows << fmt::format("| {} | {} | {} | {} | {} | {} |\n", row.claim, row.measured, row.target,
                        verdict(row.isMet), row.ours, row.reference);
    if (!rows.flush())
        fmt::print(stderr, "cannot write {}\n", file);
}

double median(const std::vector<double>& sorted) {
    return sorted[sorted.size() / 2];
}

std::string milliseconds(double seconds) {
    constexpr double manyDigits = 100; // of which none stands behind the point
    const double count = 1e3 * seconds;
    return count < manyDigits ? fmt::format("{:.3g} ms", count) : fmt::format("{:.0f} ms", count);
}

std::string spread(const std::vector<double>& sorted) {
    return fmt::format("{:.3g} / {:.3g} / {:.3g} ms", 1e3 * sorted.front(), 1e3 * median(sorted),
                       1e3 * sorted.back());
}

void printClaim(const RatioClaim_s& claim, const std::vector<double>& ours,
                const std::vector<double>& reference) {
    const bool isSpeed = claim.ratio == Ratio_e::SpeedAtLeast;
    const double measured =
        isSpeed ? median(reference) / median(ours) : median(ours) / median(reference);
    const bool met = isSpeed ? measured >= claim.target : measured <= claim.target;
    fmt::print("\n{}\n", claim.claim);
    const char* const clock = claim.clock == Clock_e::Processor ? " of processor time" : "";
    const std::string target =
        fmt::format("{} {:g}", isSpeed ? "at least" : "at most", claim.target);
    fmt::print("  ratio of medians{} {:.2f}, target {}: {}\n", clock, measured, target,
               verdict(met));
    fmt::print("  ours      (min / median / max) {}\n", spread(ours));
    fmt::print("  reference (min / median / max) {}\n", spread(reference));
    addRow({claim.claim, fmt::format("{:.2f}{}", measured, clock), target, met,
            milliseconds(median(ours)), milliseconds(median(reference))});
}

} // namespace

int runAndCompare(int argc, char** argv, const std::vector<RatioClaim_s>& claims) {
    std::vector<std::string> words(argv, argv + argc);
    words.insert(words.begin() + 1,
                 {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                  "--benchmark_report_aggregates_only=false", "--benchmark_min_time=0.2"});
    std::vector<char*> arguments;
    for (std::string& word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 2;

    CollectingReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    fmt::print("\nCompiler: GCC {}; flags: {}\n", __VERSION__, PLOT3D_BENCHMARK_FLAGS);
    for (const RatioClaim_s& claim : claims) {
        const std::vector<double> ours = reporter.seconds(claim.ours, claim.clock);
        const std::vector<double> reference = reporter.seconds(claim.reference, claim.clock);
        if (!ours.empty() && !reference.empty())
            printClaim(claim, ours, reference);
    }
    return 0;
}

void printCount(const std::string& claim, double measured, double target, const std::string& unit) {
    const bool isMet = measured <= target;
    fmt::print("{}\n  {:.0f} {}, target at most {:.0f}: {}\n", claim, measured, unit, target,
               verdict(isMet));
    addRow({claim,
            fmt::format("{:.0f} {}", measured, unit),
            fmt::format("at most {:.0f}", target),
            isMet,
            {},
            {}});
}

void printSeconds(const std::string& claim, double measured, double target) {
    const bool isMet = measured <= target;
    fmt::print("{}\n  {:.3g} s, target at most {:g} s: {}\n", claim, measured, target,
               verdict(isMet));
    addRow({claim,
            fmt::format("{:.3g} s", measured),
            fmt::format("at most {:g} s", target),
            isMet,
            {},
            {}});
}

} // namespace quorvia::benchmarks
