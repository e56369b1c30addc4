// Watches a guest over one stretch of its work (a load, a fetch, its life): what it took in that
// time and did not give back, and whether it left the lock and the rest as it found them.
#pragma once

#include <cstdint>

namespace quorvia::host {

struct HostState_s;

class GuestWatch {
public:
    /// Begins now.
    explicit GuestWatch(HostState_s& host);
    /// As if begun when handles with greater serial numbers were given out, with the lock and the
    /// rest as they are now.
    static GuestWatch since(HostState_s& host, std::int64_t serial);
    /// The same, with the lock free and everything else at rest.
    static GuestWatch sinceRest(HostState_s& host, std::int64_t serial);

    /// Adds a violation for each fault found, and puts the lock right, so that one
    /// guest's fault is not blamed on the next. Quick if nothing is held that was not held before.
    void finish() noexcept;
    /// The same for the lock, undo states and progress alone, where a guest may keep what it took.
    void checkBalances() noexcept;

private:
    struct Counts_s {
        std::int64_t serial, handles, blocks, entryLocks, guestLocks, undoStates, progressBars,
            timeDeferrers;
    };
    GuestWatch(HostState_s& host, const Counts_s& before) : host_(host), before_(before) {}

    void report(void (GuestWatch::*reportThem)()) noexcept;
    void reportHandles();
    void reportBlocks();
    bool isAnyBlockClientData() const;
    /// `now` is put right; an object that still lives is only told, for it will end by itself.
    void checkBalance(std::int64_t& now, std::int64_t before, const char* what);
    void checkEnded(std::int64_t now, std::int64_t before, const char* what);

    HostState_s& host_;
    Counts_s before_;
};

} // namespace quorvia::host
