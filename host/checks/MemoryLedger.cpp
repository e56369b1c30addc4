#include "checks/MemoryLedger.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <new>

#include "model/ValueBlock.h"

namespace quorvia::host {

MemoryLedger::~MemoryLedger() {
    for (const void* address : blocks_)
        Free()(headOf(address));
}

char* MemoryLedger::allocate(OperationId origin, std::int64_t byteCount, std::string_view label) {
    if (byteCount < 0 || byteCount > ValueBlock::largest)
        return nullptr;
    std::unique_ptr<Head_s, Free> head(
        static_cast<Head_s*>(std::malloc(sizeof(Head_s) + static_cast<std::size_t>(byteCount))));
    if (head == nullptr)
        return nullptr;
    new (head.get()) Head_s{origin, keep(label), serials_.last() + 1, byteCount};
    void* const address = head.get() + 1;
    blocks_.insert(address);
    static_cast<void>(head.release()); // the table's from now on
    serials_.next();
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

std::size_t MemoryLedger::keep(std::string_view label) {
    const auto known = std::find(labels_.begin(), labels_.end(), label);
    const auto place = static_cast<std::size_t>(known - labels_.begin());
    if (known == labels_.end())
        labels_.emplace_back(label);
    return place;
}

bool MemoryLedger::giveBack(const void* address) {
    if (blocks_.erase(address) == 0)
        return false;
    Free()(headOf(address));
    return true;
}

std::vector<HeldBlock_s> MemoryLedger::heldSince(std::int64_t serial) const {
    std::vector<HeldBlock_s> held;
    for (const void* address : blocks_) {
        const Head_s& head = *headOf(address);
        if (head.serial > serial)
            held.push_back({head.origin, labels_[head.label], head.byteCount});
    }
    return held;
}

void MemoryLedger::Free::operator()(Head_s* head) const {
    std::free(head);
}

} // namespace quorvia::host
