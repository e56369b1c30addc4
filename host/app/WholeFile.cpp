#include "app/WholeFile.h"

#include <cerrno>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace quorvia::host {

namespace fs = std::filesystem;

WholeFile::WholeFile(const std::string& name) : target_(name) {
    std::error_code ignored; // what can't be looked at can't be opened either, which is told
    const fs::file_status status = fs::status(target_, ignored);
    exists_ = fs::exists(status);
    isPlain_ = !exists_ || fs::is_regular_file(status);
    errno = 0;
    if (!isPlain_) {
        stream_.open(target_, std::ios::binary);
    } else if (exists_ && access(target_.c_str(), W_OK) != 0) {
        stream_.setstate(std::ios::failbit);
    } else {
        if (exists_)
            target_ = fs::canonical(target_, ignored);
        if (!beginBeside(target_.parent_path()))
            stream_.setstate(std::ios::failbit);
    }
    error_ = stream_ ? 0 : errno;
    errno = 0;
}

WholeFile::~WholeFile() {
    std::error_code ignored; // nobody can be told here, and nothing depends on it
    if (!growing_.empty())
        fs::remove(growing_, ignored);
}

bool WholeFile::replace(std::string& reason) {
    stream_.close(); // tells of all that was not written
    bool isWhole = static_cast<bool>(stream_);
    if (isWhole && isPlain_) {
        std::error_code ignored; // the file is as good with the usual permissions
        if (exists_)
            fs::permissions(growing_, fs::status(target_).permissions(), ignored);
        isWhole = std::rename(growing_.c_str(), target_.c_str()) == 0;
        if (isWhole)
            growing_.clear();
    }
    const int error = error_ != 0 ? error_ : errno;
    if (!isWhole)
        reason = error != 0 ? std::strerror(error) : "unknown failure";
    return isWhole;
}

/// A name that is nobody's, so that two programs may write to one target; the later one stays.
bool WholeFile::beginBeside(const fs::path& folder) {
    constexpr int mostTries = 100; // leftovers of programs that were killed
    constexpr mode_t asTheUserHasIt = 0666;
    for (int attempt = 0; attempt < mostTries; ++attempt) {
        const std::string name =
            ".quorhost-" + std::to_string(getpid()) + "-" + std::to_string(attempt);
        const fs::path path = folder / name;
        const int file =
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asTheUserHasIt);
        if (file >= 0) {
            close(file);
            growing_ = path;
            stream_.open(path, std::ios::binary | std::ios::trunc);
            return stream_.is_open();
        }
        if (errno != EEXIST)
            return false;
    }
    return false;
}

} // namespace quorvia::host
