#include "console/WholeFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <new>
#include <set>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace console {

namespace fs = std::filesystem;

namespace {

struct GrowingPaths_s {
    std::mutex mutex;
    std::set<fs::path> paths;
};

GrowingPaths_s& growingPaths() {
    static GrowingPaths_s paths;
    return paths;
}

std::string reasonOf(int error) {
    return error != 0 ? std::strerror(error) : "unknown failure";
}

} // namespace

WholeFile::WholeFile(const std::string& name, Existing_e existing)
    : target_(name), existing_(existing) {
    std::error_code ignored; // what can't be looked at can't be opened either, which is told
    const fs::file_status status = fs::status(target_, ignored);
    exists_ = fs::exists(status);
    // Standard output may be a file, which is nobody's to replace.
    isPlain_ = name != "/dev/stdout" && (!exists_ || fs::is_regular_file(status));
    errno = 0;
    if (!isPlain_) {
        stream_.open(target_, std::ios::binary | std::ios::app);
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
    if (growing_.empty())
        return;
    fs::remove(growing_, ignored);
    Growing::remove(growing_);
}

std::string WholeFile::problem() const {
    return stream_ ? std::string() : reasonOf(error_);
}

bool WholeFile::moveToTarget() {
    if (existing_ == Existing_e::Replaced)
        return std::rename(growing_.c_str(), target_.c_str()) == 0;
    // A second name is refused where the name is taken; some file systems know no second names.
    if (link(growing_.c_str(), target_.c_str()) == 0)
        return unlink(growing_.c_str()) == 0;
    if (errno == EEXIST || access(target_.c_str(), F_OK) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(growing_.c_str(), target_.c_str()) == 0;
}

bool WholeFile::replace(std::string& reason) {
    stream_.close(); // tells of all that was not written
    bool isWhole = static_cast<bool>(stream_);
    if (isWhole && isPlain_) {
        std::error_code ignored; // the file is as good with the usual permissions
        if (exists_)
            fs::permissions(growing_, fs::status(target_).permissions(), ignored);
        isWhole = moveToTarget();
        if (isWhole) {
            Growing::remove(growing_);
            growing_.clear();
        }
    }
    if (!isWhole)
        reason = reasonOf(error_ != 0 ? error_ : errno);
    return isWhole;
}

bool WholeFile::beginBeside(const fs::path& folder) {
    constexpr int mostTries = 100; // leftovers of programs that were killed
    constexpr mode_t asTheUserHasIt = 0666;
    for (int attempt = 0; attempt < mostTries; ++attempt) {
        fs::path path = growingName(folder, attempt);
        const int file =
            open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asTheUserHasIt);
        if (file >= 0) {
            close(file);
            growing_ = std::move(path);
            addToGrowing();
            // It is empty: to truncate it would make some file systems write it out when it is
            // closed.
            stream_.open(growing_, std::ios::binary | std::ios::in | std::ios::out);
            return stream_.is_open();
        }
        if (errno != EEXIST)
            return false;
    }
    return false;
}

void WholeFile::addToGrowing() {
    try {
        Growing::add(growing_);
    } catch (const std::bad_alloc&) { // nobody would take the file away
        unlink(growing_.c_str());
        throw;
    }
}

fs::path growingName(const fs::path& folder, int attempt) {
    return folder / (".growing-" + std::to_string(getpid()) + "-" + std::to_string(attempt));
}

void Growing::add(const fs::path& path) {
    GrowingPaths_s& all = growingPaths();
    const std::lock_guard lock(all.mutex);
    all.paths.insert(path);
}

void Growing::remove(const fs::path& path) {
    GrowingPaths_s& all = growingPaths();
    const std::lock_guard lock(all.mutex);
    all.paths.erase(path);
}

void Growing::deleteAll() {
    GrowingPaths_s& all = growingPaths();
    const std::lock_guard lock(all.mutex);
    std::error_code ignored; // the program ends, and nobody waits for an answer
    for (const fs::path& path : all.paths)
        fs::remove_all(path, ignored);
    all.paths.clear();
}

} // namespace console
