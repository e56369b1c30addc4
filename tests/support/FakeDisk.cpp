#include "support/FakeDisk.h"

#include <algorithm>
#include <cstring>

namespace quorvia::testsupport {

using quorutildataio::RandomAccessFile;

/// What a file holds, whatever is to go wrong with it.
class FakeDisk::Contents {
public:
    Contents() = default;
    virtual ~Contents() = default;
    Contents(const Contents&) = delete;
    Contents& operator=(const Contents&) = delete;

    virtual std::int64_t readAt(std::int64_t position, char* target, std::int64_t wanted) = 0;
    virtual std::int64_t size() = 0;
};

class FakeDisk::StoredContents : public Contents {
public:
    void place(std::int64_t size, std::int64_t position, const std::string& bytes) {
        size_ = size;
        pieces_[position] = bytes;
    }

    std::int64_t readAt(std::int64_t position, char* target, std::int64_t wanted) override {
        const std::int64_t count = std::clamp<std::int64_t>(size_ - position, 0, wanted);
        std::memset(target, 0, static_cast<std::size_t>(count));
        for (const auto& [start, bytes] : pieces_) {
            const std::int64_t first = std::max(start, position);
            const std::int64_t last = std::min(start + std::ssize(bytes), position + count);
            if (first < last)
                std::memcpy(target + (first - position), bytes.data() + (first - start),
                            static_cast<std::size_t>(last - first));
        }
        return count;
    }

    std::int64_t size() override { return size_; }

private:
    std::int64_t size_ = 0;
    std::map<std::int64_t, std::string> pieces_; // by position
};

class FakeDisk::PlatformContents : public Contents {
public:
    explicit PlatformContents(std::unique_ptr<RandomAccessFile> file) : file_(std::move(file)) {}
    std::int64_t readAt(std::int64_t position, char* target, std::int64_t wanted) override {
        return file_->readAt(position, target, wanted);
    }
    std::int64_t size() override { return file_->size(); }

private:
    std::unique_ptr<RandomAccessFile> file_;
};

class FakeFile : public RandomAccessFile {
public:
    FakeFile(FakeDisk& disk, std::shared_ptr<FakeDisk::Contents> contents)
        : disk_(disk), contents_(std::move(contents)) {
        ++disk_.openFiles;
    }
    ~FakeFile() override { --disk_.openFiles; }
    FakeFile(const FakeFile&) = delete;
    FakeFile& operator=(const FakeFile&) = delete;

    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t wanted) override {
        if (disk_.onRead)
            disk_.onRead();
        ++disk_.readCount;
        disk_.largestRead = std::max(disk_.largestRead, wanted);
        if (disk_.failingRead > 0 && --disk_.failingRead == 0)
            return -1;
        if (disk_.halvedRead > 0 && --disk_.halvedRead == 0)
            wanted = std::clamp<std::int64_t>(contents_->size() - position, 0, wanted) / 16 *
                     8; // whole values
        const std::int64_t count =
            contents_->readAt(position, static_cast<char*>(destination), wanted);
        disk_.bytesRead += std::max<std::int64_t>(count, 0);
        return count;
    }

    std::int64_t size() override { return disk_.tellsNoSize ? -1 : contents_->size(); }

private:
    FakeDisk& disk_;
    std::shared_ptr<FakeDisk::Contents> contents_;
};

FakeDisk::FakeDisk(Behind_e behind) {
    if (behind == Behind_e::Platform)
        behind_ = &quorutildataio::fileSystem();
    quorutildataio::setFileSystem(this);
}

void FakeDisk::put(const std::string& name, const std::string& bytes) {
    putSparse(name, bytes, std::ssize(bytes));
}

void FakeDisk::putSparse(const std::string& name, const std::string& bytes, std::int64_t size) {
    remove(name);
    place(name, size, 0, bytes);
}

void FakeDisk::place(const std::string& name, std::int64_t size, std::int64_t position,
                     const std::string& bytes) {
    std::shared_ptr<StoredContents>& contents = files_[name];
    if (!contents)
        contents = std::make_shared<StoredContents>();
    contents->place(size, position, bytes);
}

void FakeDisk::vanishAfterOpens(const std::string& name, std::int64_t openCount) {
    opensLeft_[name] = openCount;
}

std::unique_ptr<RandomAccessFile> FakeDisk::open(const std::string& utf8Name) {
    opened.push_back(utf8Name);
    const auto left = opensLeft_.find(utf8Name);
    if (left != opensLeft_.end() && left->second-- <= 0)
        return nullptr;
    std::shared_ptr<Contents> contents = contentsOf(utf8Name);
    return contents ? std::make_unique<FakeFile>(*this, std::move(contents)) : nullptr;
}

std::shared_ptr<FakeDisk::Contents> FakeDisk::contentsOf(const std::string& name) {
    const auto found = files_.find(name);
    if (found != files_.end())
        return found->second;
    if (behind_ == nullptr)
        return nullptr;
    std::unique_ptr<RandomAccessFile> file = behind_->open(name);
    return file ? std::make_shared<PlatformContents>(std::move(file)) : nullptr;
}

void FakeDisk::resetCounts() {
    opened.clear();
    readCount = 0;
    bytesRead = 0;
    largestRead = 0;
}

} // namespace quorvia::testsupport
