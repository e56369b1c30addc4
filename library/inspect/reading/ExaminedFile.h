// The bytes of one file that is looked at: opened once, its beginning kept, so that trial after
// trial costs no further read.
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <plot3d/Watch.h>

#include "plot3dfile/bytes/FileStream.h"
#include "plot3dfile/bytes/FileSystem.h"

namespace plot3dlib {

namespace io = quorvia::quorutildataio;

class ExaminedFile {
public:
    /// What is kept at most of the file's beginning, in bytes.
    static constexpr std::int64_t longestHead = 1024 * 1024;

    /// The watch is borrowed. Throws plot3d::Error (Interrupted) from every read once it asks for
    /// a stop.
    ExaminedFile(const std::string& name, const plot3d::Watch& watch);
    ExaminedFile(const ExaminedFile&) = delete;
    ExaminedFile& operator=(const ExaminedFile&) = delete;

    const std::string& name() const { return name_; }
    bool isOpen() const { return file_ != nullptr; }
    /// In bytes; -1 if it can't be told.
    std::int64_t size() const { return size_; }
    /// Whether a read has failed; what is told of the file is worthless then.
    bool hadReadError() const { return hadReadError_; }

    /// The first bytes, at most `byteCount`. Valid until the next read of any kind.
    std::string_view head(std::int64_t byteCount);
    /// Reads like RandomAccessFile.
    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t byteCount);
    /// A stream of its own on the file, which must outlive it.
    std::unique_ptr<io::FileStream> stream();
    /// Throws if a stop is asked for; tells the progress now and then.
    void goOn(std::int64_t position);

private:
    void keepHead(std::int64_t end);
    std::int64_t readFromFile(std::int64_t position, void* destination, std::int64_t byteCount);

    std::string name_;
    const plot3d::Watch& watch_;
    std::unique_ptr<io::RandomAccessFile> file_;
    std::int64_t size_ = -1;
    std::string head_;
    std::int64_t bytesRead_ = 0;
    bool hadReadError_ = false;
    std::chrono::steady_clock::time_point told_;
};

} // namespace plot3dlib
