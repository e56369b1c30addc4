// The blocks of host memory that a guest holds, with the labels that it gave them.
#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "checks/HandleRegistry.h"
#include "model/ValueBlock.h"

namespace quorvia::host {

struct HeldBlock {
    OperationId origin;
    std::string label;
    std::int64_t byteCount;
};

class MemoryLedger {
public:
    explicit MemoryLedger(SerialSource& serials) : serials_(serials) {}

    /// A block of undefined contents; null if there is no memory or `byteCount` is negative.
    char* allocate(OperationId origin, std::int64_t byteCount, std::string_view label);
    /// A zero-terminated copy of `text`.
    char* copyText(OperationId origin, std::string_view text);
    /// False: the host has no such block; nothing is touched.
    bool giveBack(const void* address);

    bool contains(const void* address) const { return blocks_.count(address) != 0; }
    std::int64_t count() const { return static_cast<std::int64_t>(blocks_.size()); }
    std::vector<HeldBlock> heldSince(std::int64_t serial) const;

private:
    struct Block {
        ValueBlock memory;
        OperationId origin;
        const std::string* label; // in labels_
        std::int64_t serial;
    };
    const std::string& kept(std::string_view label);

    SerialSource& serials_;
    std::unordered_map<const void*, Block> blocks_;
    std::deque<std::string> labels_; // a guest has few, and uses them over and over
};

} // namespace quorvia::host
