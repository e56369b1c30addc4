// How fast a field on demand comes from its file, against one plain read of the same bytes into the
// same array. Reads come from the page cache, so that the code is measured and not the disk.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <unistd.h>

#include <benchmark/benchmark.h>

#include "dataset/ondemand/LoadOnDemand.h"
#include "quorvia/HostHandles.h"
#include "session/ReferenceHost.h"
#include "support/RatioReport.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;
using namespace quorvia::quorutildataio;

constexpr std::int64_t valuesOfAField = 8'000'000;
constexpr std::int64_t valuesOfALongField = 24'000'000; // 192 MB, read in pieces
constexpr std::int64_t headerBytes = 12;                // so that the values do not begin at a page

/// A file of values 0, 1, 2, ... behind a small header, and one field at the host to read them
/// into.
class Field {
public:
    Field(std::int64_t width, bool byteSwap, std::int64_t valueCount)
        : width_(width), valueCount_(valueCount) {
        writeFile(byteSwap);
        createHostField();
        auto variable = std::make_shared<Plot3DVariable_s>();
        variable->fileName = fileName_;
        variable->encoding = Plot3DEncoding_Binary;
        variable->isDoublePrecision = width == 8;
        variable->byteSwap = byteSwap;
        variable->markerSize = 4;
        record_ = {variable, headerBytes, valueCount_};
    }

    bool readOnDemand() const { return readLodVariable(record_, handle_); }

    bool readPlainly() const {
        const int file = open(fileName_.c_str(), O_RDONLY);
        auto* target = static_cast<char*>(QuorUtilDataValueGetRawPtrByRef(handle_));
        std::int64_t done = 0;
        while (done < byteCount()) {
            const ssize_t got =
                pread(file, target + done, static_cast<std::size_t>(byteCount() - done),
                      headerBytes + done);
            if (got <= 0)
                break;
            done += got;
        }
        close(file);
        return done == byteCount();
    }

    std::int64_t byteCount() const { return valueCount_ * width_; }

    /// Whether the array holds 0, 1, 2, ...
    bool holdsTheValues() const {
        const void* values = QuorUtilDataValueGetRawPtrByRef(handle_);
        for (std::int64_t n = 0; n < valueCount_; n += 9973)
            if (valueAt(values, n) != static_cast<double>(n))
                return false;
        return true;
    }

private:
    double valueAt(const void* values, std::int64_t n) const {
        return width_ == 8 ? static_cast<const double*>(values)[n]
                           : static_cast<double>(static_cast<const float*>(values)[n]);
    }

    void writeFile(bool byteSwap) {
        std::vector<char> bytes(static_cast<std::size_t>(headerBytes + byteCount()));
        for (std::int64_t n = 0; n < valueCount_; ++n) {
            char* target = bytes.data() + headerBytes + n * width_;
            if (width_ == 8) {
                const double value = static_cast<double>(n);
                std::memcpy(target, &value, 8);
            } else {
                const float value = static_cast<float>(n);
                std::memcpy(target, &value, 4);
            }
            if (byteSwap)
                std::reverse(target, target + width_);
        }
        fileName_ = directory_.write("field.bin", std::string_view(bytes.data(), bytes.size()));
    }

    void createHostField() {
        host::ReferenceHost::instance().reset();
        QuorUtilLockOn();
        HostStringList names(QuorUtilStringListAlloc());
        QuorUtilStringListAppendString(names.get(), "V");
        HostArgList arguments(QuorUtilArgListAlloc());
        QuorUtilArgListAppendString(arguments.get(), "LoaderName", "benchmark");
        QuorUtilArgListAppendString(arguments.get(), "DataSetTitle", "benchmark");
        QuorUtilArgListAppendStringList(arguments.get(), "VarNames", names.get());
        bool ok = QuorUtilDataSetCreateX(arguments.get());
        const std::int32_t type = width_ == 8 ? QuorFieldDataType_Double : QuorFieldDataType_Float;
        QuorUtilArgListClear(arguments.get());
        QuorUtilArgListAppendString(arguments.get(), "Name", "zone");
        QuorUtilArgListAppendInt(arguments.get(), "ZoneType", QuorZoneType_Ordered);
        QuorUtilArgListAppendInt(arguments.get(), "IMax", valueCount_);
        QuorUtilArgListAppendInt(arguments.get(), "JMax", 1);
        QuorUtilArgListAppendInt(arguments.get(), "KMax", 1);
        QuorUtilArgListAppendArray(arguments.get(), "VarDataType", &type);
        QuorUtilArgListAppendInt(arguments.get(), "DeferVarCreation", 1);
        ok = ok && QuorUtilDataSetAddZoneX(arguments.get()) && QuorUtilDataValueAlloc(1, 1);
        handle_ = ok ? QuorUtilDataValueGetWritableRef(1, 1) : nullptr;
        if (handle_ == nullptr)
            throw std::runtime_error("the host gave no field");
        // Touch every page once: both sides then write into memory that is there.
        std::memset(QuorUtilDataValueGetRawPtrByRef(handle_), 1,
                    static_cast<std::size_t>(byteCount()));
    }

    std::int64_t width_;
    std::int64_t valueCount_;
    testsupport::TemporaryDirectory directory_;
    std::string fileName_;
    Plot3DLodRecord_s record_;
    QuorFieldHandle handle_ = nullptr;
};

void readOnDemand(benchmark::State& state, std::int64_t width, bool byteSwap,
                  std::int64_t valueCount) {
    const Field field(width, byteSwap, valueCount);
    for (auto _ : state)
        if (!field.readOnDemand())
            state.SkipWithError("the field could not be read");
    if (!field.holdsTheValues())
        state.SkipWithError("wrong values");
    state.SetBytesProcessed(state.iterations() * field.byteCount());
}

void readPlainly(benchmark::State& state, std::int64_t width, std::int64_t valueCount) {
    const Field field(width, false, valueCount);
    for (auto _ : state)
        if (!field.readPlainly())
            state.SkipWithError("the file could not be read");
    if (!field.holdsTheValues())
        state.SkipWithError("wrong values");
    state.SetBytesProcessed(state.iterations() * field.byteCount());
}

} // namespace

int main(int argc, char** argv) {
    using quorvia::benchmarks::Ratio_e;
    for (const std::int64_t width : {4, 8}) {
        const std::string bits = std::to_string(8 * width);
        benchmark::RegisterBenchmark(("PlainRead" + bits).c_str(), readPlainly, width,
                                     valuesOfAField)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("DeferredNative" + bits).c_str(), readOnDemand, width, false,
                                     valuesOfAField)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark(("DeferredSwapped" + bits).c_str(), readOnDemand, width, true,
                                     valuesOfAField)
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("PlainReadLong", readPlainly, 8, valuesOfALongField)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("DeferredLong", readOnDemand, 8, false, valuesOfALongField)
        ->Unit(benchmark::kMillisecond);
    return quorvia::benchmarks::runAndCompare(
        argc, argv,
        {{"Deferred read of 8 million 32-bit values, native byte order, to one plain read",
          "DeferredNative32", "PlainRead32", Ratio_e::SpeedAtLeast, 0.9},
         {"Deferred read of 8 million 32-bit values, other byte order, to one plain read",
          "DeferredSwapped32", "PlainRead32", Ratio_e::SpeedAtLeast, 0.6},
         {"Deferred read of 8 million 64-bit values, native byte order, to one plain read",
          "DeferredNative64", "PlainRead64", Ratio_e::SpeedAtLeast, 0.9},
         {"Deferred read of 8 million 64-bit values, other byte order, to one plain read",
          "DeferredSwapped64", "PlainRead64", Ratio_e::SpeedAtLeast, 0.6},
         {"Deferred read of 24 million 64-bit values, which asks between pieces, to one plain read",
          "DeferredLong", "PlainReadLong", Ratio_e::SpeedAtLeast, 0.9}});
}
