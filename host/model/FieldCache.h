// Which deferred fields are in memory, least recently used first, and the budget that they share.
#pragma once

#include <cstdint>
#include <list>

#include "model/FieldStorage.h"

namespace quorvia::host {

class FieldCache {
public:
    FieldCache() = default;
    FieldCache(const FieldCache&) = delete;
    FieldCache& operator=(const FieldCache&) = delete;
    ~FieldCache();

    /// Budget for fetched values in bytes; 0 for none. A field larger than the budget is fetched
    /// all the same, alone. Stored fields don't count: they could not be fetched again.
    void setLimit(std::int64_t byteLimit) { byteLimit_ = byteLimit; }

    /// Brings the values into memory and makes them the most recently used; others make room first.
    /// False: there is no memory, or the load failed; the field stays deferred. What was dropped to
    /// make room stays dropped.
    bool fetch(FieldStorage& storage);
    /// Drops fetched values. False: nothing is in memory, or the guest does not allow it.
    bool drop(FieldStorage& storage);
    void dropAll();

    std::int64_t bytesInMemory() const { return bytesInMemory_; }

private:
    friend class FieldStorage;
    void makeRoomFor(std::int64_t byteCount);
    ValueBlock takeBlock(std::int64_t byteCount);
    void forget(FieldStorage& storage);

    std::list<FieldStorage*> recent_; // the least recently used first
    ValueBlock spare_;                // the block dropped last: its pages have been touched already
    std::int64_t byteLimit_ = 0;
    std::int64_t bytesInMemory_ = 0;
};

} // namespace quorvia::host
