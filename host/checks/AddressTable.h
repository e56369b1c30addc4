// A set of addresses that asks for no memory of its own for each of them: a guest takes and gives
// back thousands of small blocks. Open addressing; what is removed leaves no mark behind.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quorvia::host {

class AddressTable {
public:
    std::int64_t count() const { return count_; }
    bool contains(const void* address) const {
        return address != nullptr && slots_[slotOf(address)] == address;
    }
    /// `address` is neither null nor in the table.
    void add(void* address);
    /// The address, which is no longer in the table; null if it was not there.
    void* remove(const void* address);

    /// Calls `visit` with each address, in no order.
    template <typename Visit>
    void forEach(Visit visit) const {
        for (void* address : slots_)
            if (address != nullptr)
                visit(address);
    }

private:
    std::size_t homeOf(const void* address) const;
    std::size_t next(std::size_t slot) const { return (slot + 1) & (slots_.size() - 1); }
    /// How far `slot` lies behind `from`, around the end.
    std::size_t distance(std::size_t from, std::size_t slot) const {
        return (slot - from) & (slots_.size() - 1);
    }
    /// Where the address is, or the free slot where it would stand.
    std::size_t slotOf(const void* address) const;
    void grow();

    std::vector<void*> slots_ = std::vector<void*>(64); // a power of two; at least half are free
    std::int64_t count_ = 0;
};

} // namespace quorvia::host
