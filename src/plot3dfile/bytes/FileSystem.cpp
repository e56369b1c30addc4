#include "plot3dfile/bytes/FileSystem.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quorvia::quorutildataio {

static_assert(sizeof(off_t) == sizeof(std::int64_t), "file positions need 64 bits");

namespace {

constexpr std::int64_t largestRead = 0x7ffff000; // what Linux takes in one call

class PosixFile final : public RandomAccessFile {
public:
    PosixFile() = default;
    ~PosixFile() override {
        if (descriptor_ >= 0)
            close(descriptor_);
    }
    PosixFile(const PosixFile&) = delete;
    PosixFile& operator=(const PosixFile&) = delete;

    bool open(const char* utf8Name) {
        do {
            // Without O_NONBLOCK a pipe would hold the host until somebody writes to it.
            descriptor_ = ::open(utf8Name, O_RDONLY | O_NONBLOCK | O_CLOEXEC);
        } while (descriptor_ < 0 && errno == EINTR);
        return descriptor_ >= 0;
    }

    bool isRegular() {
        struct stat status = {};
        return fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
    }

    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t byteCount) override {
        char* target = static_cast<char*>(destination);
        std::int64_t done = 0;
        while (done < byteCount) {
            const std::int64_t wanted = std::min(byteCount - done, largestRead);
            const std::int64_t got = pread(descriptor_, target + done,
                                           static_cast<std::size_t>(wanted), position + done);
            if (got < 0 && errno == EINTR)
                continue;
            if (got < 0)
                return -1;
            if (got == 0)
                return isAtEnd(position + done) ? done : -1;
            done += got;
        }
        return done;
    }

    std::int64_t size() override {
        struct stat status = {};
        return fstat(descriptor_, &status) == 0 ? status.st_size : -1;
    }

private:
    /// A file system that is out of order may give nothing where there is something, which must not
    /// pass for the end of the file.
    bool isAtEnd(std::int64_t position) {
        const std::int64_t bytes = size();
        return bytes >= 0 && position >= bytes;
    }

    int descriptor_ = -1;
};

class PosixFileSystem final : public FileSystem {
public:
    std::unique_ptr<RandomAccessFile> open(const std::string& utf8Name) override {
        auto file = std::make_unique<PosixFile>(); // first: without memory nothing is left open
        if (!file->open(utf8Name.c_str()) || !file->isRegular())
            return nullptr;
        return file;
    }

    bool hasFile(const std::string& utf8Name) override {
        struct stat status = {};
        return stat(utf8Name.c_str(), &status) == 0 && S_ISREG(status.st_mode);
    }
};

PosixFileSystem gPosixFileSystem;
FileSystem* gReplacement = nullptr;

} // namespace

FileSystem& fileSystem() {
    return gReplacement != nullptr ? *gReplacement : gPosixFileSystem;
}

void setFileSystem(FileSystem* replacement) {
    gReplacement = replacement;
}

} // namespace quorvia::quorutildataio
