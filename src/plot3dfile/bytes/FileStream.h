// A position and a buffer over one open file. Small reads come from the buffer, big ones go
// straight to their destination; a seek costs nothing until the next read.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include "plot3dfile/bytes/FileSystem.h"
#include "plot3dfile/bytes/ReadWatch.h"

namespace quorvia::quorutildataio {

class FileStream {
public:
    /// A watch is asked between pieces of these lengths: late enough that no small load is asked at
    /// all, then often enough that a slow disk does not make the user wait.
    static constexpr std::int64_t bytesAheadOfFirstQuestion = 64 * 1024 * 1024;
    static constexpr std::int64_t bytesBetweenQuestions = 8 * 1024 * 1024;

    /// Opens the file. Null (not told): it can't be opened.
    [[nodiscard]] static std::unique_ptr<FileStream> open(const std::string& utf8Name);

    explicit FileStream(std::unique_ptr<RandomAccessFile> file);

    /// Reads `byteCount` bytes and moves on by what came. Gives the bytes read; fewer mean the end
    /// of the file or a read error (hadReadError).
    std::int64_t read(void* destination, std::int64_t byteCount);

    /// The same. False (not told): fewer than `byteCount` bytes came.
    [[nodiscard]] bool readExactly(void* destination, std::int64_t byteCount) {
        return read(destination, byteCount) == byteCount;
    }

    /// The next byte as 0 to 255, or -1 at the end of the file or after a read error.
    int readCharacter() {
        if (bufferPosition_ < bufferEnd_)
            return static_cast<unsigned char>(buffer_[static_cast<std::size_t>(bufferPosition_++)]);
        return readCharacterFromFile();
    }

    /// The bytes that the buffer holds at the position; fills it if it is empty. `begin` == `end`:
    /// the end of the file. consume() moves the position on inside them. For scanning text in bulk.
    struct Window_s {
        const char* begin;
        const char* end;
    };
    Window_s window();
    void consume(std::int64_t byteCount) { bufferPosition_ += byteCount; }

    /// Moves to a position in bytes from the file's start; it may lie behind the end. False
    /// (not told): the position is negative.
    [[nodiscard]] bool seek(std::int64_t position);
    /// Moves on by `byteCount`. False (not told): the position would be negative or pass
    /// 64 bits.
    [[nodiscard]] bool skip(std::int64_t byteCount);

    /// Position in bytes from the file's start.
    std::int64_t tell() const { return bufferStart_ + bufferPosition_; }

    /// Size of the file in bytes, -1 if it can't be told. The position stays.
    std::int64_t size() { return file_->size(); }

    /// Whether a read has failed with an error, rather than met the end of the file. Nothing more
    /// comes from the disk then, so that values behind a hole are never taken for those in it. A
    /// read that was stopped counts as one.
    bool hadReadError() const { return hadReadError_; }

    /// Has `watch` (borrowed until it is replaced; null for nobody) asked during what is read from
    /// now on. Once it says no the stream ends, like one that had a read error.
    void watchWith(ReadWatch* watch);
    /// Whether the watch has said no.
    bool wasStopped() const { return wasStopped_; }

private:
    int readCharacterFromFile();
    bool mayReadOn();
    /// False (not told): nothing more comes.
    [[nodiscard]] bool fillBuffer();

    std::int64_t takeFromBuffer(char* target, std::int64_t byteCount);
    std::int64_t readPastBuffer(char* target, std::int64_t byteCount);
    std::int64_t readFromFile(char* target, std::int64_t byteCount);
    void restartBufferAt(std::int64_t position, std::int64_t nextFill);

    std::unique_ptr<RandomAccessFile> file_;
    std::unique_ptr<char[]> buffer_;  // never cleared, since it is filled by reading
    std::int64_t capacity_ = 0;       // bytes of the buffer
    std::int64_t bufferStart_ = 0;    // file position of the buffer's first byte
    std::int64_t bufferPosition_ = 0; // of the next byte, from the buffer's start
    std::int64_t bufferEnd_ = 0;      // bytes that the buffer holds
    std::int64_t nextFill_;           // bytes to ask for when the buffer is used up
    bool hadReadError_ = false;
    bool wasStopped_ = false;
    ReadWatch* watch_ = nullptr;
    std::int64_t bytesInPiece_ = 0; // read since the watch was asked, or put in place
    std::int64_t pieceLength_ = std::numeric_limits<std::int64_t>::max();
};

} // namespace quorvia::quorutildataio
