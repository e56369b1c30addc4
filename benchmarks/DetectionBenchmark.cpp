// What the detection of one plain binary file costs, whatever its size: bytes read and calls of the
// operating system, for 1 MB and for 8 GB (sparse), in both byte orders.
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>

#include <fmt/core.h>

#include "plot3dfile/bytes/FileSystem.h"
#include "plot3dfile/detection/StructureDetection.h"
#include "support/RatioReport.h"
#include "support/SampleFiles.h"
#include "support/TemporaryDirectory.h"

namespace {

using namespace quorvia;
using namespace quorvia::quorutildataio;

struct Counts_s {
    std::int64_t bytes = 0;
    std::int64_t systemCalls = 0;
};

class CountingFile : public RandomAccessFile {
public:
    CountingFile(std::unique_ptr<RandomAccessFile> file, Counts_s& counts)
        : file_(std::move(file)), counts_(counts) {}
    ~CountingFile() override { ++counts_.systemCalls; }

    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t byteCount) override {
        const std::int64_t got = file_->readAt(position, destination, byteCount);
        counts_.bytes += got > 0 ? got : 0;
        // A read that comes back short is asked again to tell the end of the file.
        counts_.systemCalls += got == byteCount ? 1 : 2;
        return got;
    }
    std::int64_t size() override {
        ++counts_.systemCalls;
        return file_->size();
    }

private:
    std::unique_ptr<RandomAccessFile> file_;
    Counts_s& counts_;
};

/// The platform's files, with what is asked of them counted. Opening takes two calls.
class CountingFileSystem : public FileSystem {
public:
    std::unique_ptr<RandomAccessFile> open(const std::string& utf8Name) override {
        counts.systemCalls += 2;
        auto file = platform_.open(utf8Name);
        if (file == nullptr)
            return nullptr;
        return std::make_unique<CountingFile>(std::move(file), counts);
    }

    Counts_s counts;

private:
    FileSystem& platform_ = fileSystem();
};

void measure(const std::string& what, const std::string& path, bool isSolution) {
    CountingFileSystem counting;
    setFileSystem(&counting);
    Plot3DLoadOptions_s options;
    setLoadOptionDefaults(options);
    Plot3DFileBuilder builder(options);
    const Plot3DFilePtr file = buildPlot3DFile(builder, path, isSolution);
    setFileSystem(nullptr);
    if (file == nullptr)
        throw std::runtime_error("not detected: " + what);
    benchmarks::printCount("Detection of a " + what + ": bytes read",
                           static_cast<double>(counting.counts.bytes), 65536, "bytes");
    benchmarks::printCount("Detection of a " + what + ": system calls",
                           static_cast<double>(counting.counts.systemCalls), 200, "calls");
}

} // namespace

int main() {
    const testsupport::TemporaryDirectory directory;
    for (const bool isBigEndian : {false, true})
        for (const bool isSolution : {false, true})
            for (const std::int64_t megabytes : {1, 8192}) {
                const std::string path = directory.file("detected");
                benchmarks::writeSparseBinary(path, megabytes, isSolution, isBigEndian);
                measure(fmt::format("{} file of {} MB, {}-endian", isSolution ? "solution" : "grid",
                                    megabytes, isBigEndian ? "big" : "little"),
                        path, isSolution);
            }
    return 0;
}
