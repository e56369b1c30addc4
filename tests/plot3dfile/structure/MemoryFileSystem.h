// A disk that exists only in memory, for files of given bytes: it counts what is asked of it, and a
// file may claim to be larger than its bytes, with zeros behind them, so that huge files cost
// nothing.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>

#include "plot3dfile/bytes/FileSystem.h"

namespace quorvia::quorutildataio {

class MemoryFileSystem : public FileSystem {
public:
    struct StoredFile_s {
        std::string bytes;
        std::int64_t size = 0; // in bytes; at least that of `bytes`
    };

    void put(const std::string& name, const std::string& bytes);
    /// The bytes, and zeros up to `size`.
    void putSparse(const std::string& name, const std::string& bytes, std::int64_t size);

    /// The file can be opened so many times, and then is gone.
    void vanishAfterOpens(const std::string& name, std::int64_t openCount);

    std::unique_ptr<RandomAccessFile> open(const std::string& utf8Name) override;

    // What was asked of the disk since the last resetCounts.
    std::int64_t openCount = 0;
    std::int64_t readCount = 0;
    std::int64_t bytesRead = 0;
    void resetCounts();

private:
    std::map<std::string, StoredFile_s> files_;
    std::map<std::string, std::int64_t> opensLeft_;
};

} // namespace quorvia::quorutildataio
