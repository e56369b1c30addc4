#include "support/RatioReport.h"

#include <algorithm>
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
                seconds_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                               static_cast<double>(run.iterations));
        ConsoleReporter::ReportRuns(runs);
    }

    /// Sorted, in seconds for one iteration; empty if the benchmark did not run.
    std::vector<double> seconds(const std::string& name) const {
        const auto found = seconds_.find(name);
        std::vector<double> sorted =
            found == seconds_.end() ? std::vector<double>() : found->second;
        std::sort(sorted.begin(), sorted.end());
        return sorted;
    }

private:
    std::map<std::string, std::vector<double>> seconds_;
};

double median(const std::vector<double>& sorted) {
    return sorted[sorted.size() / 2];
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
    fmt::print("  ratio of medians {:.2f}, target {} {:g}: {}\n", measured,
               isSpeed ? "at least" : "at most", claim.target, met ? "met" : "MISSED");
    fmt::print("  ours      (min / median / max) {}\n", spread(ours));
    fmt::print("  reference (min / median / max) {}\n", spread(reference));
}

} // namespace

int runAndCompare(int argc, char** argv, const std::vector<RatioClaim_s>& claims) {
    std::vector<std::string> words(argv, argv + argc);
    words.insert(words.begin() + 1,
                 {"--benchmark_enable_random_interleaving=true", "--benchmark_repetitions=9",
                  "--benchmark_report_aggregates_only=false"});
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
        const std::vector<double> ours = reporter.seconds(claim.ours);
        const std::vector<double> reference = reporter.seconds(claim.reference);
        if (!ours.empty() && !reference.empty())
            printClaim(claim, ours, reference);
    }
    return 0;
}

void printCount(const std::string& claim, double measured, double target, const std::string& unit) {
    fmt::print("{}\n  {:.0f} {}, target at most {:.0f}: {}\n", claim, measured, unit, target,
               measured <= target ? "met" : "MISSED");
}

} // namespace quorvia::benchmarks
