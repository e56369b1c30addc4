// How fast the library reads a field, against one plain read of the same bytes into the same array,
// and how much it reads for planes. From the page cache, so that the code is measured and not the
// disk.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include <plot3d/FieldReader.h>

#include "support/RatioReport.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;
using plot3d::Box;
using plot3d::ByteOrder;
using plot3d::Extent;
using plot3d::FieldReader;
using plot3d::ValueType;

constexpr Extent points{320, 256, 192}; // 15.7 million values, 126 MB
constexpr std::int64_t headerBytes = 12;

/// A file of 64-bit values 0, 1, 2, ... behind a small header.
class FieldFile {
public:
    explicit FieldFile(ByteOrder order) {
        std::vector<double> values(static_cast<std::size_t>(points.count()));
        for (std::size_t n = 0; n < values.size(); ++n) {
            values[n] = static_cast<double>(n);
            auto* bytes = reinterpret_cast<char*>(&values[n]);
            if (order == ByteOrder::Big)
                std::reverse(bytes, bytes + sizeof(double));
        }
        const std::string_view bytes(reinterpret_cast<const char*>(values.data()), byteCount());
        name_ = directory_.write("field.bin", std::string(headerBytes, 'H') + std::string(bytes));
        order_ = order;
    }

    static std::size_t byteCount() { return static_cast<std::size_t>(points.count() * 8); }
    const std::string& name() const { return name_; }
    FieldReader reader() const {
        return {{name_, ValueType::Float64, order_, {{headerBytes, points.count() * 8}}}, points};
    }

private:
    testsupport::TemporaryDirectory directory_;
    std::string name_;
    ByteOrder order_ = ByteOrder::Little;
};

/// Two fields of one form, as in a data set.
const FieldFile& nativeFile(int number) {
    static const FieldFile files[] = {FieldFile(ByteOrder::Little), FieldFile(ByteOrder::Little)};
    return files[number];
}

const FieldFile& fileIn(ByteOrder order) {
    static const FieldFile big(ByteOrder::Big);
    return order == ByteOrder::Little ? nativeFile(0) : big;
}

/// Room for a field, every page of it there.
std::vector<double> room() {
    return std::vector<double>(static_cast<std::size_t>(points.count()), -1.0);
}

void expectCounting(benchmark::State& state, const std::vector<double>& values) {
    for (std::size_t n = 0; n < values.size(); n += 9973)
        if (values[n] != static_cast<double>(n))
            state.SkipWithError("wrong values");
}

void readPlainly(benchmark::State& state) {
    std::vector<double> values = room();
    for (auto _ : state) {
        const int file = open(fileIn(ByteOrder::Little).name().c_str(), O_RDONLY | O_CLOEXEC);
        if (pread(file, values.data(), FieldFile::byteCount(), headerBytes) < 0)
            state.SkipWithError("the file could not be read");
        close(file);
    }
    expectCounting(state, values);
}

void readField(benchmark::State& state, ByteOrder order) {
    std::vector<double> values = room();
    for (auto _ : state)
        fileIn(order).reader().read(values.data());
    expectCounting(state, values);
}

void readTwoFields(benchmark::State& state, bool atOnce) {
    std::vector<double> first = room();
    std::vector<double> second = room();
    const FieldReader readers[] = {nativeFile(0).reader(), nativeFile(1).reader()};
    for (auto _ : state) {
        if (atOnce) {
            std::jthread other([&] { readers[1].read(second.data()); });
            readers[0].read(first.data());
        } else {
            readers[0].read(first.data());
            readers[1].read(second.data());
        }
    }
    expectCounting(state, first);
    expectCounting(state, second);
}

/// The reads that boxes of a field of 1 GB take; the file is a hole.
void printPlaneCounts() {
    constexpr Extent size{512, 512, 512};
    const testsupport::TemporaryDirectory directory;
    const std::string name = directory.write("hole.bin", "");
    std::filesystem::resize_file(name, static_cast<std::uintmax_t>(size.count() * 8));
    const auto measure = [&](const char* what, const Box& box, std::int64_t mostBytes,
                             std::int64_t mostReads) {
        const FieldReader reader(
            {name, ValueType::Float64, ByteOrder::Little, {{0, size.count() * 8}}}, size);
        std::vector<double> values(static_cast<std::size_t>(box.count()));
        reader.read(box, values.data());
        benchmarks::printCount(std::string("Bytes for ") + what,
                               static_cast<double>(reader.bytesRead()),
                               static_cast<double>(mostBytes), "bytes");
        benchmarks::printCount(std::string("Reads for ") + what,
                               static_cast<double>(reader.readCount()),
                               static_cast<double>(mostReads), "reads");
    };
    constexpr std::int64_t planeBytes = size.i * size.j * 8;
    constexpr std::int64_t slack = 64 * 1024;
    measure("a K plane of a field of 1 GB", {{0, 511, 1}, {0, 511, 1}, {255, 255, 1}},
            planeBytes + slack, 2);
    measure("an I plane of it", {{255, 255, 1}, {0, 511, 1}, {0, 511, 1}}, size.count() * 8,
            2 * size.k);
    measure("a J plane of it", {{0, 511, 1}, {255, 255, 1}, {0, 511, 1}},
            size.i * size.k * 8 + slack, size.k);
}

} // namespace

int main(int argc, char** argv) {
    using benchmarks::Ratio_e;
    for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big})
        fileIn(order); // not within what is measured
    const auto add = [](const char* name, auto work, auto... arguments) {
        benchmark::RegisterBenchmark(name, work, arguments...)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    };
    add("PlainRead", readPlainly);
    add("FieldNative", readField, ByteOrder::Little);
    add("FieldSwapped", readField, ByteOrder::Big);
    add("TwoFieldsOneThread", readTwoFields, false);
    add("TwoFieldsTwoThreads", readTwoFields, true);
    const int code = benchmarks::runAndCompare(
        argc, argv,
        {{"Library: a field of 126 MB, native byte order, to one plain read", "FieldNative",
          "PlainRead", Ratio_e::SpeedAtLeast, 0.9},
         {"Library: the same in the other byte order, to one plain read", "FieldSwapped",
          "PlainRead", Ratio_e::SpeedAtLeast, 0.7},
         {"Library: two fields in two threads, to one thread", "TwoFieldsTwoThreads",
          "TwoFieldsOneThread", Ratio_e::SpeedAtLeast, 1.5}});
    if (code == 0)
        printPlaneCounts();
    return code;
}
