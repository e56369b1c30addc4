// How fast all fields of a text data set of 100 MB are loaded through the built add-on, against a
// loop of fscanf over the same file and std::from_chars over the same text in memory.
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include <plot3d/DataSet.h>
#include <plot3d/FieldReader.h>

#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"
#include "support/RatioReport.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

constexpr std::int32_t points = 131; // in each direction; about 100 MB of text

double coordinate(std::int32_t variable, std::int32_t i, std::int32_t j, std::int32_t k) {
    const double position = variable == 0 ? i : variable == 1 ? j : k;
    return std::sin(0.01 * position) * 12.5 + 1e-3 * (i + 3 * j + 7 * k);
}

/// One grid file of text, written once for all benchmarks.
class TextFile {
public:
    static const TextFile& instance() {
        static const TextFile file;
        return file;
    }
    const std::string& path() const { return path_; }
    const std::string& text() const { return text_; }
    std::int64_t byteCount() const { return static_cast<std::int64_t>(text_.size()); }

private:
    TextFile() : path_(directory_.file("grid.x")) {
        std::FILE* file = std::fopen(path_.c_str(), "w");
        if (file == nullptr)
            throw std::runtime_error("cannot write " + path_);
        std::fprintf(file, "%d %d %d\n", points, points, points);
        for (std::int32_t variable = 0; variable < 3; ++variable)
            for (std::int32_t k = 0; k < points; ++k)
                for (std::int32_t j = 0; j < points; ++j)
                    for (std::int32_t i = 0; i < points; ++i)
                        std::fprintf(file, "%.8E%c", coordinate(variable, i, j, k),
                                     i % 5 == 4 ? '\n' : ' ');
        std::fclose(file);
        text_.resize(std::filesystem::file_size(path_));
        std::ifstream in(path_, std::ios::binary);
        if (!in.read(text_.data(), static_cast<std::streamsize>(text_.size())))
            throw std::runtime_error("cannot read " + path_);
    }

    testsupport::TemporaryDirectory directory_;
    std::string path_;
    std::string text_;
};

constexpr std::int64_t valueCount = 3 + 3LL * points * points * points;

void loadThroughAddOn(benchmark::State& state) {
    std::string error;
    const auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    host::ReferenceHost& quorhost = host::ReferenceHost::instance();
    const std::string& path = TextFile::instance().path();
    for (auto _ : state)
        if (library == nullptr || !quorhost.importSelection({path}, false, false).ok)
            state.SkipWithError("the load failed");
    const host::FetchResult_s z = quorhost.fetch(1, 3);
    const std::int64_t last = z.count - 1;
    if (!z.ok || std::abs(static_cast<const float*>(z.values)[last] -
                          coordinate(2, points - 1, points - 1, points - 1)) > 1e-5)
        state.SkipWithError("wrong values");
    state.SetBytesProcessed(state.iterations() * TextFile::instance().byteCount());
    quorhost.reset();
}

void openByLibrary(benchmark::State& state) {
    const std::string& path = TextFile::instance().path();
    constexpr plot3d::Range end = {points - 1, points - 1, 1};
    std::optional<plot3d::DataSet> data; // dropped behind the loop, as the host's is
    for (auto _ : state)
        data = plot3d::DataSet::open({path});
    double z = 0.0;
    data.value().reader(0, 2).readAsDouble({end, end, end}, &z);
    if (std::abs(z - coordinate(2, points - 1, points - 1, points - 1)) > 1e-5)
        state.SkipWithError("wrong values");
    state.SetBytesProcessed(state.iterations() * TextFile::instance().byteCount());
}

void scanWithFscanf(benchmark::State& state) {
    for (auto _ : state) {
        std::FILE* file = std::fopen(TextFile::instance().path().c_str(), "r");
        double value = 0.0;
        std::int64_t count = 0;
        while (std::fscanf(file, "%le", &value) == 1)
            ++count;
        std::fclose(file);
        benchmark::DoNotOptimize(value);
        if (count != valueCount)
            state.SkipWithError("wrong count");
    }
    state.SetBytesProcessed(state.iterations() * TextFile::instance().byteCount());
}

void scanWithFromChars(benchmark::State& state) {
    const std::string& text = TextFile::instance().text();
    for (auto _ : state) {
        const char* cursor = text.data();
        const char* end = cursor + text.size();
        double value = 0.0;
        std::int64_t count = 0;
        while (true) {
            while (cursor < end && (*cursor == ' ' || *cursor == '\n'))
                ++cursor;
            const auto [next, problem] = std::from_chars(cursor, end, value);
            if (problem != std::errc())
                break;
            cursor = next;
            ++count;
        }
        benchmark::DoNotOptimize(value);
        if (count != valueCount)
            state.SkipWithError("wrong count");
    }
    state.SetBytesProcessed(state.iterations() * TextFile::instance().byteCount());
}

} // namespace

int main(int argc, char** argv) {
    using quorvia::benchmarks::Clock_e;
    using quorvia::benchmarks::Ratio_e;
    TextFile::instance(); // not within what is measured
    benchmark::RegisterBenchmark("LoadText", loadThroughAddOn)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("OpenText", openByLibrary)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("Fscanf", scanWithFscanf)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    benchmark::RegisterBenchmark("FromChars", scanWithFromChars)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    return quorvia::benchmarks::runAndCompare(
        argc, argv,
        {{"All fields of a 100 MB text file, to a loop of fscanf(\"%le\")", "LoadText", "Fscanf",
          Ratio_e::SpeedAtLeast, 4.0, Clock_e::Processor},
         {"All fields of a 100 MB text file, to std::from_chars over the text in memory",
          "LoadText", "FromChars", Ratio_e::SpeedAtLeast, 0.75, Clock_e::Processor},
         {"Library: the same text, to that load (as fast, but for 5 %)", "OpenText", "LoadText",
          Ratio_e::SpeedAtLeast, 0.95, Clock_e::Processor}});
}
