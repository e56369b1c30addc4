#include "checks/AddressTable.h"

#include <utility>

namespace quorvia::host {

void AddressTable::add(void* address) {
    if (2 * (static_cast<std::size_t>(count_) + 1) > slots_.size())
        grow();
    slots_[slotOf(address)] = address;
    ++count_;
}

void* AddressTable::remove(const void* address) {
    std::size_t hole = slotOf(address);
    void* const removed = slots_[hole];
    if (removed == nullptr)
        return nullptr;
    // Those behind, up to the next free slot, must still be found from where they belong.
    for (std::size_t slot = next(hole); slots_[slot] != nullptr; slot = next(slot)) {
        if (distance(homeOf(slots_[slot]), slot) < distance(hole, slot))
            continue;
        slots_[hole] = slots_[slot];
        hole = slot;
    }
    slots_[hole] = nullptr;
    --count_;
    return removed;
}

std::size_t AddressTable::homeOf(const void* address) const {
    constexpr std::uint64_t spread = 0x9E3779B97F4A7C15; // addresses differ in few of their bits
    const std::uint64_t mixed = reinterpret_cast<std::uintptr_t>(address) * spread;
    return static_cast<std::size_t>(mixed >> 32) & (slots_.size() - 1);
}

std::size_t AddressTable::slotOf(const void* address) const {
    std::size_t slot = homeOf(address);
    while (slots_[slot] != nullptr && slots_[slot] != address)
        slot = next(slot);
    return slot;
}

void AddressTable::grow() {
    const std::vector<void*> old = std::exchange(slots_, std::vector<void*>(2 * slots_.size()));
    for (void* address : old)
        if (address != nullptr)
            slots_[slotOf(address)] = address;
}

} // namespace quorvia::host
