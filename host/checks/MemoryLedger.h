// The blocks of host memory that a guest holds, with the labels that it gave them. What is known of
// a block stands ahead of it, but is only looked at for an address that the host has given out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <tsl/robin_set.h>

#include "checks/HandleRegistry.h"

namespace quorvia::host {

struct HeldBlock_s {
    OperationId origin;
    std::string label;
    std::int64_t byteCount;
};

class MemoryLedger {
public:
    explicit MemoryLedger(SerialSource& serials) : serials_(serials) {}
    ~MemoryLedger();
    MemoryLedger(const MemoryLedger&) = delete;
    MemoryLedger& operator=(const MemoryLedger&) = delete;

    /// A block of undefined contents, aligned for any number; null if there is no memory or if
    /// `byteCount` is negative or beyond every machine. Throws std::bad_alloc if there is no memory
    /// to account for it.
    char* allocate(OperationId origin, std::int64_t byteCount, std::string_view label);
    /// A zero-terminated copy of `text`, likewise.
    char* copyText(OperationId origin, std::string_view text);
    /// False: the host has no such block; nothing is touched.
    bool giveBack(const void* address);

    bool contains(const void* address) const { return blocks_.count(address) != 0; }
    std::int64_t count() const { return static_cast<std::int64_t>(blocks_.size()); }
    std::vector<HeldBlock_s> heldSince(std::int64_t serial) const;

private:
    struct alignas(std::max_align_t) Head_s {
        OperationId origin;
        std::size_t label; // in labels_
        std::int64_t serial;
        std::int64_t byteCount;
    };
    class Free {
    public:
        void operator()(Head_s* head) const;
    };
    /// Blocks begin at multiples of 16.
    class AddressHash {
    public:
        std::size_t operator()(const void* address) const {
            return reinterpret_cast<std::uintptr_t>(address) / 16;
        }
    };
    /// `address` is one in blocks_.
    static Head_s* headOf(const void* address) {
        return static_cast<Head_s*>(const_cast<void*>(address)) - 1;
    }
    /// The place of the label in labels_.
    std::size_t keep(std::string_view label);

    SerialSource& serials_;
    tsl::robin_set<const void*, AddressHash> blocks_; // where they begin for the guest
    std::vector<std::string> labels_; // a guest has few, and uses them over and over
};

} // namespace quorvia::host
