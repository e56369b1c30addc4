// plot3d stats of all fields of a data set of 256 MB, against VTK's PLOT3D reader merely bringing
// the same fields into memory. From the page cache, so that the code is measured and not the disk.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "program/app/Program.h" // the host has an app/Program.h, too
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;
using plot3dwriter::ByteOrder_e;

constexpr std::int32_t points = 203; // in each direction: eight variables of 33 MB

/// Grid and solution in both byte orders, as VTK's reader can be told of them.
class Flow {
public:
    Flow() {
        for (const ByteOrder_e order : {ByteOrder_e::Little, ByteOrder_e::Big}) {
            using plot3dwriter::FileKind_e;
            benchmarks::writeFlow(gridFile(order), FileKind_e::Grid, points, order, true);
            benchmarks::writeFlow(solutionFile(order), FileKind_e::ClassicSolution, points, order,
                                  true);
        }
    }

    std::string gridFile(ByteOrder_e order) const { return directory_.file(nameIn(order) + ".x"); }
    std::string solutionFile(ByteOrder_e order) const {
        return directory_.file(nameIn(order) + ".q");
    }
    static std::string nameIn(ByteOrder_e order) {
        return order == ByteOrder_e::Little ? "little" : "big";
    }

private:
    testsupport::TemporaryDirectory directory_;
};

const Flow& flow() {
    static const Flow written;
    return written;
}

void stats(benchmark::State& state, ByteOrder_e order, const char* threads) {
    const std::vector<std::string> arguments = {"stats", flow().gridFile(order),
                                                flow().solutionFile(order), "--threads", threads};
    for (auto _ : state) {
        std::istringstream in;
        std::ostringstream out;
        if (plot3d::program::run(arguments, in, out, out) != 0 ||
            out.str().find("8,365,427") == std::string::npos)
            state.SkipWithError("no statistics of all points");
    }
}

/// Of the update alone, as Python's clock has it; below 0 if VTK is not there.
double secondsOfVtk(ByteOrder_e order) {
    const std::string command = "/usr/bin/python3 " PLOT3D_VTK_SCRIPT " " + flow().gridFile(order) +
                                " " + flow().solutionFile(order) + " " + Flow::nameIn(order) +
                                " 2>/dev/null";
    std::FILE* const pipe = popen(command.c_str(), "r");
    double seconds = -1;
    if (pipe == nullptr || std::fscanf(pipe, "%lf", &seconds) != 1)
        seconds = -1;
    return pipe != nullptr && pclose(pipe) == 0 ? seconds : -1;
}

void readByVtk(benchmark::State& state, ByteOrder_e order) {
    for (auto _ : state) {
        const double seconds = secondsOfVtk(order);
        if (seconds < 0)
            state.SkipWithError("python3-vtk9 is not installed, or could not read the files");
        state.SetIterationTime(std::max(seconds, 1e-9));
    }
}

} // namespace

int main(int argc, char** argv) {
    using benchmarks::Ratio_e;
    const auto add = [](const char* name, auto work, auto... arguments) {
        return benchmark::RegisterBenchmark(name, work, arguments...)
            ->Unit(benchmark::kMillisecond);
    };
    add("StatsNative", stats, ByteOrder_e::Little, "2")->UseRealTime();
    add("StatsSwapped", stats, ByteOrder_e::Big, "2")->UseRealTime();
    add("StatsOneThread", stats, ByteOrder_e::Little, "1")->UseRealTime();
    add("VtkNative", readByVtk, ByteOrder_e::Little)->UseManualTime()->Iterations(1);
    add("VtkSwapped", readByVtk, ByteOrder_e::Big)->UseManualTime()->Iterations(1);
    return benchmarks::runAndCompare(
        argc, argv,
        {{"plot3d stats of 256 MB, two threads, native byte order, to VTK bringing them in",
          "StatsNative", "VtkNative", Ratio_e::SpeedAtLeast, 5},
         {"plot3d stats of the same in the other byte order", "StatsSwapped", "VtkSwapped",
          Ratio_e::SpeedAtLeast, 4},
         {"plot3d stats on two threads, to one", "StatsNative", "StatsOneThread",
          Ratio_e::SpeedAtLeast, 1.5}});
}
