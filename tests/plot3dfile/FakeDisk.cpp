#include "FakeDisk.h"

#include <algorithm>
#include <cstring>

namespace quorvia::testsupport {

class FakeFile : public quorutildataio::RandomAccessFile {
public:
    FakeFile(FakeDisk& disk, std::shared_ptr<FakeDisk::Contents_s> contents)
        : disk_(disk), contents_(std::move(contents)) {
        ++disk_.openFiles;
    }
    ~FakeFile() override { --disk_.openFiles; }
    FakeFile(const FakeFile&) = delete;
    FakeFile& operator=(const FakeFile&) = delete;

    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t wanted) override {
        ++disk_.readCount;
        if (disk_.failingRead > 0 && --disk_.failingRead == 0)
            return -1;
        std::int64_t count =
            std::min(wanted, std::max<std::int64_t>(contents_->size - position, 0));
        if (disk_.halvedRead > 0 && --disk_.halvedRead == 0)
            count = count / 16 * 8; // whole values
        copyOut(position, static_cast<char*>(destination), count);
        disk_.bytesRead += count;
        disk_.largestRead = std::max(disk_.largestRead, wanted);
        return count;
    }

    std::int64_t size() override { return disk_.tellsNoSize ? -1 : contents_->size; }

private:
    void copyOut(std::int64_t position, char* target, std::int64_t count) const {
        std::memset(target, 0, static_cast<std::size_t>(count));
        for (const auto& [start, bytes] : contents_->pieces) {
            const std::int64_t first = std::max(start, position);
            const std::int64_t last = std::min(start + std::ssize(bytes), position + count);
            if (first < last)
                std::memcpy(target + (first - position), bytes.data() + (first - start),
                            static_cast<std::size_t>(last - first));
        }
    }

    FakeDisk& disk_;
    std::shared_ptr<FakeDisk::Contents_s> contents_;
};

void FakeDisk::put(const std::string& name, const std::string& bytes) {
    remove(name);
    place(name, std::ssize(bytes), 0, bytes);
}

void FakeDisk::place(const std::string& name, std::int64_t size, std::int64_t position,
                     const std::string& bytes) {
    std::shared_ptr<Contents_s>& contents = files_[name];
    if (!contents)
        contents = std::make_shared<Contents_s>();
    contents->size = size;
    contents->pieces[position] = bytes;
}

std::unique_ptr<quorutildataio::RandomAccessFile> FakeDisk::open(const std::string& name) {
    const auto found = files_.find(name);
    return found != files_.end() ? std::make_unique<FakeFile>(*this, found->second) : nullptr;
}

} // namespace quorvia::testsupport
