// What `plot3d info` costs on 1,000 solution files: the whole command, output included, beside a
// bare open and close of each file.
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <fmt/core.h>
#include <unistd.h>

#include "app/Program.h"
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

constexpr std::int32_t fileCount = 1000;

const std::vector<std::string>& files() {
    static const testsupport::TemporaryDirectory directory;
    static const std::vector<std::string> files =
        benchmarks::writeTimeSeries(directory.path(), fileCount);
    return files;
}

void open(benchmark::State& state) {
    for ([[maybe_unused]] auto round : state)
        for (const std::string& file : files())
            if (close(::open(file.c_str(), O_RDONLY | O_CLOEXEC)) != 0)
                std::abort();
}

void info(benchmark::State& state) {
    std::vector<std::string> arguments = {"info"};
    arguments.insert(arguments.end(), files().begin(), files().end());
    for ([[maybe_unused]] auto round : state) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        if (plot3d::program::run(arguments, in, out, err) != 0)
            std::abort();
        benchmark::DoNotOptimize(out);
    }
}

} // namespace

BENCHMARK(open);
BENCHMARK(info);

int main(int argc, char** argv) {
    files(); // not within what is measured
    return benchmarks::runAndCompare(
        argc, argv,
        {{"plot3d info on 1,000 files, beside a bare open of each", "info", "open",
          benchmarks::Ratio_e::CostAtMost, 8, benchmarks::Clock_e::Processor}});
}
