#include "MemoryFileSystem.h"

#include <algorithm>
#include <cstring>

namespace quorvia::quorutildataio {

namespace {

class MemoryFile : public RandomAccessFile {
public:
    MemoryFile(MemoryFileSystem& disk, const MemoryFileSystem::StoredFile_s& file)
        : disk_(disk), file_(file) {}

    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t byteCount) override {
        const std::int64_t count = std::clamp<std::int64_t>(file_.size - position, 0, byteCount);
        ++disk_.readCount;
        disk_.bytesRead += count;
        std::memset(destination, 0, static_cast<std::size_t>(count));
        const auto stored = static_cast<std::int64_t>(file_.bytes.size());
        const std::int64_t copied = std::clamp<std::int64_t>(stored - position, 0, count);
        if (copied > 0)
            std::memcpy(destination, file_.bytes.data() + position,
                        static_cast<std::size_t>(copied));
        return count;
    }

    std::int64_t size() override { return file_.size; }

private:
    MemoryFileSystem& disk_;
    const MemoryFileSystem::StoredFile_s& file_;
};

} // namespace

void MemoryFileSystem::put(const std::string& name, const std::string& bytes) {
    putSparse(name, bytes, static_cast<std::int64_t>(bytes.size()));
}

void MemoryFileSystem::putSparse(const std::string& name, const std::string& bytes,
                                 std::int64_t size) {
    files_[name] = {bytes, size};
}

void MemoryFileSystem::vanishAfterOpens(const std::string& name, std::int64_t openCountLeft) {
    opensLeft_[name] = openCountLeft;
}

std::unique_ptr<RandomAccessFile> MemoryFileSystem::open(const std::string& utf8Name) {
    ++openCount;
    const auto file = files_.find(utf8Name);
    if (file == files_.end())
        return nullptr;
    const auto left = opensLeft_.find(utf8Name);
    if (left != opensLeft_.end() && left->second-- <= 0)
        return nullptr;
    return std::make_unique<MemoryFile>(*this, file->second);
}

void MemoryFileSystem::resetCounts() {
    openCount = 0;
    readCount = 0;
    bytesRead = 0;
}

} // namespace quorvia::quorutildataio
