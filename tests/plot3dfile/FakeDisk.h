// A disk in memory that counts what is asked of it and fails when it is told to. Files can be as
// big as they like: what was not written reads as zeros.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "plot3dfile/bytes/FileSystem.h"

namespace quorvia::testsupport {

class FakeDisk : public quorutildataio::FileSystem {
public:
    /// Takes the place of the platform's file system for as long as it lives.
    FakeDisk() { quorutildataio::setFileSystem(this); }
    ~FakeDisk() override { quorutildataio::setFileSystem(nullptr); }
    FakeDisk(const FakeDisk&) = delete;
    FakeDisk& operator=(const FakeDisk&) = delete;

    void put(const std::string& name, const std::string& bytes);
    /// Places `bytes` at a position of a file of `size` bytes, which is made if it isn't there.
    void place(const std::string& name, std::int64_t size, std::int64_t position,
               const std::string& bytes);
    void remove(const std::string& name) { files_.erase(name); }

    std::unique_ptr<quorutildataio::RandomAccessFile> open(const std::string& name) override;

    // Read number n from now, counted from 1, fails, or brings only half of the bytes; 0: none
    // does.
    std::int64_t failingRead = 0;
    std::int64_t halvedRead = 0;
    bool tellsNoSize = false; // of its files

    std::int64_t readCount = 0;
    std::int64_t bytesRead = 0;
    std::int64_t largestRead = 0;
    std::int64_t openFiles = 0;

private:
    friend class FakeFile;
    struct Contents_s {
        std::int64_t size = 0;
        std::map<std::int64_t, std::string> pieces; // by position; they don't overlap
    };
    std::map<std::string, std::shared_ptr<Contents_s>> files_;
};

} // namespace quorvia::testsupport
