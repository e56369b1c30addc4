#include "read/PieceBytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <limits>

#include <plot3d/Error.h>

namespace plot3dlib {

namespace {

using plot3d::Error;
using plot3d::ErrorKind;
using plot3d::Piece;
namespace files = quorvia::quorutildataio;

std::string bytesText(std::int64_t count) {
    return std::to_string(count) + (count == 1 ? " byte" : " bytes");
}

/// Of all pieces together; below 0 if one is impossible.
std::int64_t lengthOf(const std::vector<Piece>& pieces) {
    constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
    std::int64_t length = 0;
    for (const Piece& piece : pieces) {
        if (piece.offset < 0 || piece.byteCount < 0 || piece.byteCount > most - piece.offset ||
            piece.byteCount > most - length)
            return -1;
        length += piece.byteCount;
    }
    return length;
}

std::unique_ptr<files::RandomAccessFile> openFile(const std::string& name) {
    auto file = files::fileSystem().open(name);
    if (file)
        return file;
    if (files::fileSystem().hasFile(name))
        throw Error(ErrorKind::NotFound, "the file can't be opened for reading",
                    {name, {}, {}, {}, {}});
    throw Error(ErrorKind::NotFound, "there is no such file", {name, {}, {}, {}, {}});
}

} // namespace

PieceBytes::PieceBytes(const plot3d::Source& source, std::int64_t byteCount) : name_(source.file) {
    const std::int64_t length = lengthOf(source.pieces);
    if (length != byteCount)
        throw Error(ErrorKind::Usage, "the pieces don't hold the field's values",
                    {name_,
                     {},
                     bytesText(byteCount),
                     length < 0 ? "positions that can't be" : bytesText(length),
                     {}});
    std::int64_t start = 0;
    for (const Piece& piece : source.pieces) {
        if (piece.byteCount == 0)
            continue;
        pieces_.push_back(piece);
        starts_.push_back(start);
        start += piece.byteCount;
    }
    file_ = openFile(name_);
}

void PieceBytes::read(std::int64_t place, void* destination, std::int64_t byteCount) const {
    char* target = static_cast<char*>(destination);
    const auto behind = std::upper_bound(starts_.begin(), starts_.end(), place);
    for (auto n = static_cast<std::size_t>(behind - starts_.begin()) - 1; byteCount > 0; ++n) {
        const std::int64_t skipped = place - starts_[n];
        const std::int64_t part = std::min(byteCount, pieces_[n].byteCount - skipped);
        readFromFile(pieces_[n].offset + skipped, target, part);
        target += part;
        place += part;
        byteCount -= part;
    }
}

void PieceBytes::readFromFile(std::int64_t position, char* destination,
                              std::int64_t byteCount) const {
    errno = 0;
    const std::int64_t got = file_->readAt(position, destination, byteCount);
    const int failure = errno;
    readCount_.fetch_add(1, std::memory_order_relaxed);
    if (got < 0)
        throw Error(ErrorKind::Unreadable, "the file can't be read",
                    {name_,
                     position,
                     bytesText(byteCount) + " from byte " + std::to_string(position),
                     failure != 0 ? std::strerror(failure) : "a read error",
                     {}});
    bytesRead_.fetch_add(got, std::memory_order_relaxed);
    if (got < byteCount)
        throw Error(ErrorKind::Unreadable, "the file ends inside the values of a field",
                    {name_,
                     position + got,
                     "at least " + bytesText(position + byteCount),
                     bytesText(file_->size()),
                     {}});
}

} // namespace plot3dlib
