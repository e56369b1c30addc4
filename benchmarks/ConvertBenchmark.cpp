// plot3d convert of plain binary files of 256 MB to plain binary files, against a loop that merely
// reads and writes the same bytes. From the page cache and into it, so that the code is measured
// and not the disk.
#include <cstdint>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <unistd.h>

#include "program/app/Program.h" // the host has an app/Program.h, too
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

constexpr std::int32_t points = 203; // in each direction: eight variables of 33 MB

/// A grid and a solution, little-endian, and a place for results.
class Flow {
public:
    Flow() {
        using namespace plot3dwriter;
        benchmarks::writeFlow(file("flow.x"), FileKind_e::Grid, points, ByteOrder_e::Little, false);
        benchmarks::writeFlow(file("flow.q"), FileKind_e::ClassicSolution, points,
                              ByteOrder_e::Little, false);
    }
    std::string file(const std::string& name) const { return directory_.file(name); }

private:
    testsupport::TemporaryDirectory directory_;
};

const Flow& flow() {
    static const Flow written;
    return written;
}

/// Results are deleted between the runs, so that each one writes new files.
void deleteResults() {
    for (const char* const name : {"out.x", "out.q"})
        std::filesystem::remove(flow().file(name));
}

bool isWhole() {
    return std::filesystem::file_size(flow().file("out.x")) ==
               std::filesystem::file_size(flow().file("flow.x")) &&
           std::filesystem::file_size(flow().file("out.q")) ==
               std::filesystem::file_size(flow().file("flow.q"));
}

void convert(benchmark::State& state, const char* order) {
    const std::vector<std::string> arguments = {
        "convert", flow().file("flow.x"), flow().file("flow.q"), "--byte-order", order,
        "-o",      flow().file("out.x")};
    for (auto _ : state) {
        std::istringstream in;
        std::ostringstream out;
        if (plot3d::program::run(arguments, in, out, out) != 0)
            state.SkipWithError(out.str().c_str());
        state.PauseTiming();
        if (!isWhole())
            state.SkipWithError("not all bytes were written");
        deleteResults();
        state.ResumeTiming();
    }
}

void copyFile(const std::string& from, const std::string& to) {
    constexpr std::size_t blockBytes = std::size_t{1} << 20;
    constexpr mode_t asTheUserHasIt = 0666;
    std::vector<char> block(blockBytes);
    const int in = open(from.c_str(), O_RDONLY | O_CLOEXEC);
    const int out = open(to.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, asTheUserHasIt);
    for (ssize_t count = 1; count > 0;) {
        count = read(in, block.data(), block.size());
        if (count > 0 && write(out, block.data(), static_cast<std::size_t>(count)) != count)
            throw std::runtime_error("cannot write " + to);
    }
    close(in);
    close(out);
}

void readAndWrite(benchmark::State& state) {
    for (auto _ : state) {
        copyFile(flow().file("flow.x"), flow().file("out.x"));
        copyFile(flow().file("flow.q"), flow().file("out.q"));
        state.PauseTiming();
        if (!isWhole())
            state.SkipWithError("not all bytes were written");
        deleteResults();
        state.ResumeTiming();
    }
}

} // namespace

int main(int argc, char** argv) {
    using benchmarks::Ratio_e;
    flow(); // not within what is measured
    const auto add = [](const char* name, auto work, auto... arguments) {
        benchmark::RegisterBenchmark(name, work, arguments...)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
    };
    add("ConvertNative", convert, "little");
    add("ConvertSwapped", convert, "big");
    add("ReadAndWrite", readAndWrite);
    return benchmarks::runAndCompare(
        argc, argv,
        {{"plot3d convert of 256 MB of plain binary, to a loop that reads and writes",
          "ConvertNative", "ReadAndWrite", Ratio_e::SpeedAtLeast, 0.8},
         {"plot3d convert of the same to the other byte order", "ConvertSwapped", "ReadAndWrite",
          Ratio_e::SpeedAtLeast, 0.6}});
}
