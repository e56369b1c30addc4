// What it costs to set up a time series of one grid file and many solution files, against a loop
// that opens each file, reads its first 4 KiB and closes it. Both are timed in a process that has
// done neither before, as a user meets them: a heap in which thousands of zones were made and freed
// makes the next load slower, and a user loads once. That no field data is read is shown by the
// bytes read: they are the same for small fields and for big ones.
#include <array>
#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <fcntl.h>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

#include <benchmark/benchmark.h>
#include <fmt/core.h>

#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"
#include "support/BytesRead.h"
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

/// A time series on disk, written once for all benchmarks of its length.
class Series {
public:
    static const Series& ofLength(std::int32_t steps) {
        static const Series thousand(1000);
        static const Series twoThousand(2000);
        return steps == 1000 ? thousand : twoThousand;
    }
    const std::vector<std::string>& files() const { return files_; }

private:
    explicit Series(std::int32_t steps)
        : files_(benchmarks::writeTimeSeries(directory_.path(), steps)) {}

    testsupport::TemporaryDirectory directory_;
    std::vector<std::string> files_;
};

/// Seconds that `work` takes in a child of this process; negative if it fails or throws.
template <typename Work>
double secondsInChild(Work work) {
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0)
        return -1.0;
    malloc_trim(0); // a child that inherits free memory would pay for copies of its pages
    const pid_t child = fork();
    if (child == 0) {
        const auto start = std::chrono::steady_clock::now();
        const bool ok = work();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        const double seconds = ok ? took.count() : -1.0;
        const bool told = write(ends[1], &seconds, sizeof seconds) == sizeof seconds;
        _exit(told ? 0 : 1); // without taking the data set down again
    }
    close(ends[1]);
    double seconds = -1.0;
    if (child < 0 || read(ends[0], &seconds, sizeof seconds) != sizeof seconds)
        seconds = -1.0;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return seconds;
}

template <typename Work>
void timeInChildren(benchmark::State& state, Work work) {
    for (auto _ : state) {
        const double seconds = secondsInChild(work);
        if (seconds < 0.0)
            state.SkipWithError("it failed");
        state.SetIterationTime(seconds);
    }
}

void setUp(benchmark::State& state, std::int32_t steps) {
    std::string error;
    const auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    const std::vector<std::string>& files = Series::ofLength(steps).files();
    timeInChildren(state, [&] {
        host::ReferenceHost& quorhost = host::ReferenceHost::instance();
        return library != nullptr && quorhost.importSelection(files, false, false).ok &&
               quorhost.frame().dataSet() != nullptr && quorhost.log().violations.empty();
    });
}

/// Bytes read while one grid file and `steps` solution files of that size are set up.
std::int64_t bytesReadBySetUp(std::int32_t steps, const benchmarks::Points_s& points) {
    const testsupport::TemporaryDirectory directory;
    const std::vector<std::string> files =
        benchmarks::writeTimeSeries(directory.path(), steps, points);
    host::ReferenceHost& quorhost = host::ReferenceHost::instance();
    const std::int64_t before = testsupport::bytesReadSoFar();
    if (!quorhost.importSelection(files, false, false).ok)
        throw std::runtime_error("the load failed");
    const std::int64_t bytes = testsupport::bytesReadSoFar() - before;
    quorhost.reset();
    return bytes;
}

/// The second series has fields of 30 times the size. A few bytes are allowed for the counters.
int printBytesRead() {
    std::string error;
    const auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    if (library == nullptr) {
        fmt::print(stderr, "{}\n", error);
        return 1;
    }
    constexpr std::int32_t steps = 50;
    const std::int64_t small = bytesReadBySetUp(steps, {17, 11, 7});
    const std::int64_t big = bytesReadBySetUp(steps, {53, 37, 19});
    fmt::print("\nBytes read to set up one grid file and {} solution files\n"
               "  {} with fields of 5 KB, {} with fields of 146 KB\n",
               steps, small, big);
    benchmarks::printCount(
        "Growth of the bytes read to set 51 files up, from fields of 5 KB to 146 KB",
        static_cast<double>(big - small), 1024, "bytes");
    return 0;
}

void touchFiles(benchmark::State& state, std::int32_t steps) {
    const std::vector<std::string>& files = Series::ofLength(steps).files();
    timeInChildren(state, [&] {
        std::array<char, 4096> start{};
        for (const std::string& name : files) {
            const int file = open(name.c_str(), O_RDONLY | O_CLOEXEC);
            if (file < 0 || read(file, start.data(), start.size()) <= 0)
                return false;
            close(file);
        }
        return true;
    });
}

} // namespace

int main(int argc, char** argv) {
    using quorvia::benchmarks::Ratio_e;
    // Many short repetitions, since the state of the caches drifts over seconds.
    const auto prepare = [](benchmark::internal::Benchmark* measurement) {
        constexpr int repetitions = 31;
        constexpr double shortest = 0.2; // seconds
        measurement->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Repetitions(repetitions)
            ->MinTime(shortest);
    };
    for (const std::int32_t steps : {1000, 2000}) {
        const std::string count = std::to_string(steps);
        prepare(benchmark::RegisterBenchmark(("SetUp" + count).c_str(), setUp, steps));
        prepare(benchmark::RegisterBenchmark(("Touch" + count).c_str(), touchFiles, steps));
    }
    const int outcome = quorvia::benchmarks::runAndCompare(
        argc, argv,
        {{"One grid file with 1,000 solution files, to opening and reading 4 KiB of each",
          "SetUp1000", "Touch1000", Ratio_e::CostAtMost, 8.0},
         {"2,000 solution files, to 1,000", "SetUp2000", "SetUp1000", Ratio_e::CostAtMost, 2.2}});
    return outcome != 0 ? outcome : printBytesRead();
}
