#include "inspect/reading/ExaminedFile.h"

#include <algorithm>
#include <cstring>

#include <plot3d/Error.h>

namespace plot3dlib {

namespace {

constexpr std::int64_t shortestHead = 4096;
constexpr std::chrono::milliseconds betweenProgress(50);

/// What a stream owns in the place of the file.
class Lent final : public io::RandomAccessFile {
public:
    explicit Lent(ExaminedFile& file) : file_(file) {}
    std::int64_t readAt(std::int64_t position, void* destination, std::int64_t byteCount) override {
        return file_.readAt(position, destination, byteCount);
    }
    std::int64_t size() override { return file_.size(); }

private:
    ExaminedFile& file_;
};

} // namespace

ExaminedFile::ExaminedFile(const std::string& name, const plot3d::Watch& watch)
    : name_(name), watch_(watch), file_(io::fileSystem().open(name)) {
    if (file_ != nullptr)
        size_ = file_->size();
}

std::string_view ExaminedFile::head(std::int64_t byteCount) {
    keepHead(std::min(byteCount, longestHead));
    return std::string_view(head_).substr(0, static_cast<std::size_t>(byteCount));
}

std::int64_t ExaminedFile::readAt(std::int64_t position, void* destination,
                                  std::int64_t byteCount) {
    const auto kept = static_cast<std::int64_t>(head_.size());
    const bool growsHead =
        position <= std::max(kept, shortestHead - 1) && byteCount <= longestHead - position;
    if (growsHead)
        keepHead(position + byteCount);
    if (position + byteCount <= static_cast<std::int64_t>(head_.size()) ||
        (growsHead && static_cast<std::int64_t>(head_.size()) == size_)) {
        const auto end = static_cast<std::int64_t>(head_.size());
        const std::int64_t count = std::clamp<std::int64_t>(end - position, 0, byteCount);
        if (count > 0)
            std::memcpy(destination, head_.data() + position, static_cast<std::size_t>(count));
        return count;
    }
    return readFromFile(position, destination, byteCount);
}

void ExaminedFile::keepHead(std::int64_t end) {
    const auto kept = static_cast<std::int64_t>(head_.size());
    const std::int64_t wanted = std::min(std::max(end, shortestHead), size_);
    if (wanted <= kept)
        return;
    head_.resize(static_cast<std::size_t>(wanted));
    const std::int64_t got = readFromFile(kept, head_.data() + kept, wanted - kept);
    head_.resize(static_cast<std::size_t>(kept + std::max<std::int64_t>(got, 0)));
}

std::int64_t ExaminedFile::readFromFile(std::int64_t position, void* destination,
                                        std::int64_t byteCount) {
    goOn(position);
    const std::int64_t got = file_->readAt(position, destination, byteCount);
    if (got < 0)
        hadReadError_ = true;
    else
        bytesRead_ += got;
    return got;
}

std::unique_ptr<io::FileStream> ExaminedFile::stream() {
    return std::make_unique<io::FileStream>(std::make_unique<Lent>(*this));
}

void ExaminedFile::goOn(std::int64_t position) {
    if (watch_.stop.stop_requested())
        throw plot3d::Error(plot3d::ErrorKind::Interrupted, "Stopped.", {name_, {}, {}, {}, {}});
    if (!watch_.progress)
        return;
    const auto now = std::chrono::steady_clock::now();
    if (now - told_ < betweenProgress)
        return;
    told_ = now;
    const double size = static_cast<double>(std::max<std::int64_t>(size_, 1));
    watch_.progress(
        {"Looking at " + name_, std::min(static_cast<double>(position) / size, 1.0), bytesRead_});
}

} // namespace plot3dlib
