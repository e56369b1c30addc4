#include "plot3dfile/bytes/FileStream.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <utility>

namespace quorvia::quorutildataio {

namespace {

// The first read behind an open or a jump is small, since most of them want a header, a few scalars
// or one marker, and a long list of files has many; whoever reads on is given more and more.
constexpr std::int64_t smallestFill = 256;
constexpr std::int64_t largestFill = 64 * 1024;
constexpr std::int64_t fillGrowth = 4;

} // namespace

std::unique_ptr<FileStream> FileStream::open(const std::string& utf8Name) {
    std::unique_ptr<RandomAccessFile> file = fileSystem().open(utf8Name);
    return file ? std::make_unique<FileStream>(std::move(file)) : nullptr;
}

FileStream::FileStream(std::unique_ptr<RandomAccessFile> file)
    : file_(std::move(file)), nextFill_(smallestFill) {}

std::int64_t FileStream::read(void* destination, std::int64_t byteCount) {
    char* target = static_cast<char*>(destination);
    std::int64_t done = takeFromBuffer(target, byteCount);
    while (done < byteCount) {
        const std::int64_t wanted = byteCount - done;
        if (wanted >= nextFill_)
            return done + readPastBuffer(target + done, wanted);
        if (!fillBuffer())
            break;
        done += takeFromBuffer(target + done, wanted);
    }
    return done;
}

FileStream::Window_s FileStream::window() {
    if (bufferPosition_ == bufferEnd_)
        static_cast<void>(fillBuffer()); // an empty window says so
    return {buffer_.get() + bufferPosition_, buffer_.get() + bufferEnd_};
}

bool FileStream::seek(std::int64_t position) {
    if (position < 0)
        return false;
    if (position >= bufferStart_ && position - bufferStart_ <= bufferEnd_)
        bufferPosition_ = position - bufferStart_;
    else
        restartBufferAt(position, smallestFill);
    return true;
}

bool FileStream::skip(std::int64_t byteCount) {
    const std::int64_t position = tell();
    if (byteCount > std::numeric_limits<std::int64_t>::max() - position)
        return false;
    return seek(position + byteCount);
}

void FileStream::watchWith(ReadWatch* watch) {
    watch_ = watch;
    bytesInPiece_ = 0;
    pieceLength_ =
        watch != nullptr ? bytesAheadOfFirstQuestion : std::numeric_limits<std::int64_t>::max();
}

bool FileStream::mayReadOn() {
    if (wasStopped_ || bytesInPiece_ < pieceLength_)
        return !wasStopped_;
    if (watch_ != nullptr && !watch_->goesOn(bytesInPiece_))
        wasStopped_ = hadReadError_ = true;
    bytesInPiece_ = 0;
    pieceLength_ = bytesBetweenQuestions;
    return !wasStopped_;
}

int FileStream::readCharacterFromFile() {
    return fillBuffer() ? readCharacter() : -1;
}

bool FileStream::fillBuffer() {
    const std::int64_t fill = nextFill_;
    restartBufferAt(tell(), std::min(fill * fillGrowth, largestFill));
    if (capacity_ < fill) {
        buffer_ = std::make_unique_for_overwrite<char[]>(static_cast<std::size_t>(fill));
        capacity_ = fill;
    }
    bufferEnd_ = mayReadOn() ? readFromFile(buffer_.get(), fill) : 0;
    bytesInPiece_ += bufferEnd_;
    return bufferEnd_ > 0;
}

std::int64_t FileStream::takeFromBuffer(char* target, std::int64_t byteCount) {
    const std::int64_t taken = std::min(byteCount, bufferEnd_ - bufferPosition_);
    if (taken <= 0)
        return 0;
    std::memcpy(target, buffer_.get() + bufferPosition_, static_cast<std::size_t>(taken));
    bufferPosition_ += taken;
    return taken;
}

std::int64_t FileStream::readPastBuffer(char* target, std::int64_t byteCount) {
    restartBufferAt(tell(), std::min(nextFill_ * fillGrowth, largestFill));
    std::int64_t done = 0;
    while (done < byteCount && mayReadOn()) {
        const std::int64_t piece = std::min(byteCount - done, pieceLength_ - bytesInPiece_);
        const std::int64_t got = readFromFile(target + done, piece);
        bufferStart_ += got;
        bytesInPiece_ += got;
        done += got;
        if (got < piece)
            break;
    }
    return done;
}

std::int64_t FileStream::readFromFile(char* target, std::int64_t byteCount) {
    if (hadReadError_)
        return 0;
    const std::int64_t reachable = std::numeric_limits<std::int64_t>::max() - bufferStart_;
    const std::int64_t got = file_->readAt(bufferStart_, target, std::min(byteCount, reachable));
    if (got < 0)
        hadReadError_ = true;
    return std::max<std::int64_t>(got, 0);
}

void FileStream::restartBufferAt(std::int64_t position, std::int64_t nextFill) {
    bufferStart_ = position;
    bufferPosition_ = 0;
    bufferEnd_ = 0;
    nextFill_ = nextFill;
}

} // namespace quorvia::quorutildataio
