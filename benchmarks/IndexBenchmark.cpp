// plot3d index of many time steps: how long it takes, and how big the index is. With 255 zones,
// which takes minutes, if PLOT3D_BENCHMARK_LONG is set.
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "program/app/Program.h" // the host has an app/Program.h, too
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

constexpr std::int32_t steps = 1000;

class Index {
public:
    Index(const testsupport::TemporaryDirectory& directory, const std::vector<std::string>& files)
        : file_(directory.file("out.cgns")), arguments_{"index", "-o", file_, "--overwrite"} {
        arguments_.insert(arguments_.end(), files.begin(), files.end());
    }

    double secondsToWrite() const {
        std::istringstream in;
        std::ostringstream out;
        const auto start = std::chrono::steady_clock::now();
        if (plot3d::program::run(arguments_, in, out, out) != 0)
            throw std::runtime_error(out.str());
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    }
    double byteCount() const { return static_cast<double>(std::filesystem::file_size(file_)); }

private:
    std::string file_;
    std::vector<std::string> arguments_;
};

void measureOneZone() {
    const testsupport::TemporaryDirectory directory;
    const Index index(directory, benchmarks::writeTimeSeries(directory.path(), steps));
    std::vector<double> seconds(5);
    std::generate(seconds.begin(), seconds.end(), [&] { return index.secondsToWrite(); });
    std::sort(seconds.begin(), seconds.end());
    benchmarks::printSeconds("plot3d index of one zone with 1,000 times, to CGNS",
                             seconds[seconds.size() / 2], 1);
}

void measureManyZones() {
    constexpr std::int32_t zones = 255;
    const testsupport::TemporaryDirectory directory;
    const Index index(directory, benchmarks::writeManyGrids(directory.path(), zones, steps));
    benchmarks::printSeconds("plot3d index of 255 zones with 1,000 times", index.secondsToWrite(),
                             180);
    benchmarks::printCount("Size of that index of 255 zones for each zone and time",
                           index.byteCount() / zones / steps, 6 * 1024, "bytes");
}

} // namespace

int main() {
    measureOneZone();
    if (std::getenv("PLOT3D_BENCHMARK_LONG") != nullptr)
        measureManyZones();
    return 0;
}
