#include "plot3dwriter/FileSink.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#include <sys/types.h>
#include <unistd.h>

namespace quorvia::plot3dwriter {

static_assert(sizeof(off_t) == sizeof(std::int64_t), "files past 2 GiB need 64-bit positions");

namespace {
constexpr std::size_t bufferSize = std::size_t{1} << 20;
}

FileSink::FileSink(const std::string& path)
    : stream_(std::fopen(path.c_str(), "wb")), buffer_(bufferSize) {
    if (!stream_)
        fail();
    // Our buffer is the only one; the stream's would copy every byte once more.
    std::setvbuf(stream_.get(), nullptr, _IONBF, 0);
}

void FileSink::write(std::string_view bytes) {
    if (bytes.empty())
        return;
    position_ += static_cast<std::int64_t>(bytes.size());
    endsInHole_ = false;
    while (!bytes.empty()) {
        const std::size_t part = std::min(bytes.size(), buffer_.size() - bufferedCount_);
        std::memcpy(buffer_.data() + bufferedCount_, bytes.data(), part);
        bufferedCount_ += part;
        bytes.remove_prefix(part);
        if (bufferedCount_ == buffer_.size())
            flushBuffer();
    }
}

void FileSink::skip(std::int64_t byteCount) {
    if (byteCount == 0)
        return;
    flushBuffer();
    if (fseeko(stream_.get(), byteCount, SEEK_CUR) != 0)
        fail();
    position_ += byteCount;
    endsInHole_ = true;
}

void FileSink::finish() {
    flushBuffer();
    if (endsInHole_ && ftruncate(fileno(stream_.get()), position_) != 0)
        fail();
    if (std::fclose(stream_.release()) != 0)
        fail();
}

void FileSink::flushBuffer() {
    if (std::fwrite(buffer_.data(), 1, bufferedCount_, stream_.get()) != bufferedCount_)
        fail();
    bufferedCount_ = 0;
}

void FileSink::fail() {
    throw WriteFault(std::generic_category().message(errno));
}

} // namespace quorvia::plot3dwriter
