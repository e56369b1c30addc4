#include "convert/output/ByteOutput.h"

#include <cerrno>
#include <cstring>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include <plot3d/Error.h>

namespace plot3d::program {

namespace {
constexpr std::size_t bufferBytes = std::size_t{1} << 18;
constexpr mode_t asTheUserHasIt = 0666;

int openedForWriting(const std::filesystem::path& path) {
    if (path == "/dev/stdout") // which may be a file with something in it already
        return fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0);
    // To truncate an empty file would make some file systems write it out when it is closed.
    std::error_code ignored; // what can't be looked at can't be opened either
    const auto size = std::filesystem::file_size(path, ignored);
    const int truncates = !ignored && size > 0 ? O_TRUNC : 0;
    return open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | truncates, asTheUserHasIt);
}

} // namespace

ByteOutput::ByteOutput(const std::filesystem::path& path, std::string shownName)
    : shownName_(std::move(shownName)) {
    buffer_.reserve(bufferBytes);
    file_ = openedForWriting(path);
    if (file_ < 0)
        fail();
}

ByteOutput::~ByteOutput() {
    if (file_ >= 0)
        close(file_); // what was not finished is thrown away by its owner
}

void ByteOutput::write(const void* bytes, std::size_t count) {
    const bool goesThrough = count > bufferBytes / 2;
    if (goesThrough || buffer_.size() + count > bufferBytes)
        flush(); // what came before stands ahead of it
    const auto* const first = static_cast<const char*>(bytes);
    if (goesThrough)
        writeThrough(first, count);
    else
        buffer_.insert(buffer_.end(), first, first + count);
}

void ByteOutput::patch(std::int64_t position, const void* bytes, std::size_t count) {
    flush();
    const auto* next = static_cast<const char*>(bytes);
    while (count > 0) {
        const ssize_t written = pwrite(file_, next, count, position);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            fail();
        next += written;
        position += written;
        count -= static_cast<std::size_t>(written);
    }
}

void ByteOutput::finish() {
    flush();
    if (close(std::exchange(file_, -1)) != 0)
        fail();
}

void ByteOutput::flush() {
    writeThrough(buffer_.data(), buffer_.size());
    buffer_.clear();
}

void ByteOutput::writeThrough(const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(file_, bytes, count);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            fail();
        bytes += written;
        position_ += written;
        count -= static_cast<std::size_t>(written);
    }
}

void ByteOutput::fail() const {
    ErrorFacts facts;
    facts.file = shownName_;
    throw Error(ErrorKind::Refused,
                std::string("the file can't be written: ") + std::strerror(errno),
                std::move(facts));
}

} // namespace plot3d::program
