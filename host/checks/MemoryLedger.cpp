#include "checks/MemoryLedger.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quorvia::host {

char* MemoryLedger::allocate(OperationId origin, std::int64_t byteCount, std::string_view label) {
    ValueBlock memory = ValueBlock::uninitialised(byteCount);
    if (!memory)
        return nullptr;
    void* address = memory.data();
    blocks_.emplace(address, Block{std::move(memory), origin, &kept(label), serials_.next()});
    return static_cast<char*>(address);
}

char* MemoryLedger::copyText(OperationId origin, std::string_view text) {
    char* copy = allocate(origin, static_cast<std::int64_t>(text.size()) + 1, "text");
    if (copy != nullptr) {
        std::memcpy(copy, text.data(), text.size());
        copy[text.size()] = '\0';
    }
    return copy;
}

const std::string& MemoryLedger::kept(std::string_view label) {
    const auto known = std::find(labels_.begin(), labels_.end(), label);
    return known != labels_.end() ? *known : labels_.emplace_back(label);
}

bool MemoryLedger::giveBack(const void* address) {
    return blocks_.erase(address) != 0;
}

std::vector<HeldBlock> MemoryLedger::heldSince(std::int64_t serial) const {
    std::vector<HeldBlock> held;
    for (const auto& [address, block] : blocks_) {
        if (block.serial > serial)
            held.push_back({block.origin, *block.label, block.memory.byteCount()});
    }
    return held;
}

} // namespace quorvia::host
