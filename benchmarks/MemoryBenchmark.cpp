// What the add-on keeps in memory: bytes for each field on demand, and the highest use while text
// files of growing size are read.
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include <fmt/core.h>

#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"
#include "support/AddOnHeap.h"
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;

void import(const std::vector<std::string>& files) {
    host::ReferenceHost& quorhost = host::ReferenceHost::instance();
    if (!quorhost.importSelection(files, false, false).ok)
        throw std::runtime_error("the load failed");
}

void measureDeferredFields() {
    constexpr std::int32_t stepCount = 400;
    constexpr std::int64_t fieldCount = 3 + 5LL * stepCount;
    const testsupport::TemporaryDirectory directory;
    const std::vector<std::string> files = benchmarks::writeTimeSeries(directory.path(), stepCount);
    benchmarks::watchAddOnHeap(PLOT3D_ADDON_PATH);
    import(files);
    const double bytes = static_cast<double>(benchmarks::addOnHeapBytes());
    benchmarks::printCount("Add-on memory for each deferred field, one grid and 400 solution files",
                           bytes / static_cast<double>(fieldCount), 160, "bytes");
    host::ReferenceHost::instance().reset();
}

std::int64_t peakOfTextLoad(std::int32_t points) {
    const testsupport::TemporaryDirectory directory;
    const std::string file = directory.file("grid.x");
    benchmarks::writeTextGrid(file, points);
    benchmarks::watchAddOnHeap(PLOT3D_ADDON_PATH);
    import({file});
    host::ReferenceHost::instance().reset();
    return benchmarks::addOnHeapPeakBytes();
}

void measureTextReading() {
    const std::int64_t small = peakOfTextLoad(29);
    const std::int64_t big = peakOfTextLoad(131);
    fmt::print("Peak of the add-on's memory while it reads text\n"
               "  1 MB file {} bytes, 100 MB file {} bytes\n",
               small, big);
    benchmarks::printCount("Growth of the add-on's peak memory from 1 MB of text to 100 MB",
                           static_cast<double>(big - small), 4096, "bytes");
}

} // namespace

int main() {
    std::string error;
    const auto library = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    if (library == nullptr) {
        fmt::print(stderr, "{}\n", error);
        return 1;
    }
    measureDeferredFields();
    measureTextReading();
    return 0;
}
