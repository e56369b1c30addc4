// Stands in front of the disk: counts what is opened and read, and can throw as a host or an
// exhausted memory would.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plot3dfile/bytes/FileSystem.h"

namespace quorvia::testsupport {

class WatchedFiles : public quorutildataio::FileSystem {
public:
    WatchedFiles() : disk_(quorutildataio::fileSystem()) { quorutildataio::setFileSystem(this); }
    ~WatchedFiles() override { quorutildataio::setFileSystem(nullptr); }
    WatchedFiles(const WatchedFiles&) = delete;
    WatchedFiles& operator=(const WatchedFiles&) = delete;

    std::unique_ptr<quorutildataio::RandomAccessFile> open(const std::string& utf8Name) override {
        opened.push_back(utf8Name);
        std::unique_ptr<quorutildataio::RandomAccessFile> file = disk_.open(utf8Name);
        return file ? std::make_unique<WatchedFile>(std::move(file), *this) : nullptr;
    }

    std::vector<std::string> opened;
    std::int64_t readCount = 0;
    std::int64_t bytesRead = 0;
    std::function<void()> onRead; // called ahead of each read; may throw

private:
    class WatchedFile : public quorutildataio::RandomAccessFile {
    public:
        WatchedFile(std::unique_ptr<quorutildataio::RandomAccessFile> file, WatchedFiles& watch)
            : file_(std::move(file)), watch_(watch) {}
        std::int64_t readAt(std::int64_t position, void* destination,
                            std::int64_t byteCount) override {
            if (watch_.onRead)
                watch_.onRead();
            const std::int64_t done = file_->readAt(position, destination, byteCount);
            ++watch_.readCount;
            watch_.bytesRead += done > 0 ? done : 0;
            return done;
        }
        std::int64_t size() override { return file_->size(); }

    private:
        std::unique_ptr<quorutildataio::RandomAccessFile> file_;
        WatchedFiles& watch_;
    };

    quorutildataio::FileSystem& disk_;
};

} // namespace quorvia::testsupport
