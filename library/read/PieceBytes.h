// The bytes of the pieces of a file as one row, which is read from any place. One open file, read
// at positions: any number of threads may use it at once.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include <plot3d/Field.h>

#include "plot3dfile/bytes/FileSystem.h"

namespace plot3dlib {

class PieceBytes {
public:
    /// Opens the file. Throws Error: NotFound; Usage unless the pieces hold `byteCount` bytes.
    PieceBytes(const plot3d::Source& source, std::int64_t byteCount);

    /// Reads the bytes from `place`, counted from 0 in the row. They are there (not checked). One
    /// read of the file for each piece that they touch. Throws Error (Unreadable) with the position
    /// in the file at which the bytes fail to come.
    void read(std::int64_t place, void* destination, std::int64_t byteCount) const;

    std::int64_t bytesRead() const { return bytesRead_.load(std::memory_order_relaxed); }
    std::int64_t readCount() const { return readCount_.load(std::memory_order_relaxed); }

private:
    void readFromFile(std::int64_t position, char* destination, std::int64_t byteCount) const;

    std::string name_;
    std::vector<plot3d::Piece> pieces_; // none is empty
    std::vector<std::int64_t> starts_;  // of each piece, its first byte's place in the row
    std::unique_ptr<quorvia::quorutildataio::RandomAccessFile> file_;
    mutable std::atomic<std::int64_t> bytesRead_ = 0;
    mutable std::atomic<std::int64_t> readCount_ = 0;
};

} // namespace plot3dlib
