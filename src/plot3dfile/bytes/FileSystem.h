// The one way to the disk: files opened for reading by UTF-8 name, read at 64-bit positions. Tests
// put a file system of their own in its place, to stage short reads, read errors and vanished
// files.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace quorvia::quorutildataio {

/// One open file. Knows no position of its own.
class RandomAccessFile {
public:
    virtual ~RandomAccessFile() = default;

    /// Reads up to `byteCount` bytes from `position` into `destination`. Gives the bytes read,
    /// which are fewer only at the end of the file (0: nothing there), or -1 for a read error.
    virtual std::int64_t readAt(std::int64_t position, void* destination,
                                std::int64_t byteCount) = 0;

    /// Size of the file in bytes, or -1 if it can't be told.
    virtual std::int64_t size() = 0;
};

class FileSystem {
public:
    virtual ~FileSystem() = default;

    /// Null (not told): there is no such file, it may not be read, or it is no regular file (a
    /// directory, or a pipe that would never end).
    [[nodiscard]] virtual std::unique_ptr<RandomAccessFile> open(const std::string& utf8Name) = 0;

    /// Whether there is such a regular file, readable or not. Tells one that can't be opened from
    /// one that was never there.
    virtual bool hasFile(const std::string& utf8Name) { return open(utf8Name) != nullptr; }
};

/// The file system in use; the platform's, unless a test has put another in its place.
FileSystem& fileSystem();

/// Puts `replacement` (borrowed; null for the platform's) in place. Not for use while files are
/// open.
void setFileSystem(FileSystem* replacement);

} // namespace quorvia::quorutildataio
