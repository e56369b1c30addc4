// A disk for tests, in the place of the platform's: it counts what is asked of it and fails when it
// is told to. Its files are in memory and can be as big as they like (what was not written reads as
// zeros); those that it does not hold may be looked for on the platform's disk.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "plot3dfile/bytes/FileSystem.h"

namespace quorvia::testsupport {

class FakeDisk : public quorutildataio::FileSystem {
public:
    /// What stands behind the files that were put: nothing, or the platform's disk.
    enum class Behind_e { Nothing, Platform };

    /// In place for as long as it lives. No file may be open at its end, nor another fake disk be
    /// in place at its beginning.
    explicit FakeDisk(Behind_e behind = Behind_e::Nothing);
    ~FakeDisk() override { quorutildataio::setFileSystem(nullptr); }
    FakeDisk(const FakeDisk&) = delete;
    FakeDisk& operator=(const FakeDisk&) = delete;

    /// A whole file. One that is open keeps its older contents.
    void put(const std::string& name, const std::string& bytes);
    /// The bytes, and zeros up to `size`.
    void putSparse(const std::string& name, const std::string& bytes, std::int64_t size);
    /// Places `bytes` at a position of a file of `size` bytes, which is made if it isn't there.
    /// Pieces must not overlap, but one may replace another at the same position.
    void place(const std::string& name, std::int64_t size, std::int64_t position,
               const std::string& bytes);
    void remove(const std::string& name) { files_.erase(name); }
    /// The file can be opened so many times, and then is gone.
    void vanishAfterOpens(const std::string& name, std::int64_t openCount);

    [[nodiscard]] std::unique_ptr<quorutildataio::RandomAccessFile>
    open(const std::string& utf8Name) override;

    // Read number n from now, counted from 1, fails, or brings only half of the bytes; 0: none
    // does.
    std::int64_t failingRead = 0;
    std::int64_t halvedRead = 0;
    bool tellsNoSize = false;     // of its files
    std::function<void()> onRead; // called ahead of each read; may throw, as a host would

    // What was asked of it since the last resetCounts.
    std::vector<std::string> opened; // names, in vain or not
    std::int64_t readCount = 0;
    std::int64_t bytesRead = 0;   // delivered
    std::int64_t largestRead = 0; // asked for
    void resetCounts();

    std::int64_t openFiles = 0; // now

private:
    friend class FakeFile;
    class Contents;
    class StoredContents;
    class PlatformContents;
    std::shared_ptr<Contents> contentsOf(const std::string& name);

    quorutildataio::FileSystem* behind_ = nullptr;
    std::map<std::string, std::shared_ptr<StoredContents>> files_;
    std::map<std::string, std::int64_t> opensLeft_;
};

} // namespace quorvia::testsupport
