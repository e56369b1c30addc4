// What a long read asks on its way. No read below 64 MiB asks anything; FileStream tells when.
#pragma once

#include <cstdint>
#include <memory>

#include "plot3dfile/bytes/FileStream.h"
#include "quorvia/QuorUtilityLibrary.h"

namespace quorvia::quorutildataio {

/// For a read during a load, whose bar counts fields: asks whether the user has interrupted. The
/// host's lock must be held.
class LoadWatch : public ReadWatch {
public:
    /// False (not told): stop.
    [[nodiscard]] bool goesOn(std::int64_t byteCount) override;
};

/// For a fetch, which may come at any time and without the lock: opens a bar of its own, which
/// moves with the bytes, and stops when a step of it says so. The bar closes with this object.
class FetchWatch : public ReadWatch {
public:
    /// `byteCount`: of the whole fetch; an estimate will do.
    explicit FetchWatch(std::int64_t byteCount) : byteCount_(byteCount) {}

    /// False (not told): stop. Throws std::bad_alloc if the host has no memory for a bar.
    [[nodiscard]] bool goesOn(std::int64_t byteCount) override;

private:
    std::int64_t byteCount_;
    std::int64_t bytesDone_ = 0;
    std::int64_t stepsDone_ = 0;
    std::unique_ptr<TaskProgress> bar_; // from the first question on
};

/// Has `watch` asked while the open stream is read in a scope.
class WatchedReading {
public:
    WatchedReading(FileStream& stream, ReadWatch& watch) : stream_(stream) {
        stream_.watchWith(&watch);
    }
    ~WatchedReading() { stream_.watchWith(nullptr); }
    WatchedReading(const WatchedReading&) = delete;
    WatchedReading& operator=(const WatchedReading&) = delete;

private:
    FileStream& stream_;
};

} // namespace quorvia::quorutildataio
