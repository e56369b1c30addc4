// Room in a vector that is there before it is needed: what stands behind it can't fail any more.
#pragma once

#include <algorithm>
#include <cstddef>
#include <new>
#include <vector>

namespace quorvia::host {

/// The next `count` items can be added without memory. Grows as the vector itself would. Throws
/// std::bad_alloc, and nothing has changed then.
template <typename Item>
void makeRoom(std::vector<Item>& items, std::size_t count = 1) {
    if (items.capacity() - items.size() < count)
        items.reserve(std::max(items.size() + count, 2 * items.capacity()));
}

/// The same as far as there is memory.
template <typename Item>
void makeRoomIfPossible(std::vector<Item>& items, std::size_t count = 1) noexcept {
    try {
        makeRoom(items, count);
    } catch (const std::bad_alloc&) { // whoever needs the room finds out
    }
}

template <typename Item>
bool hasRoom(const std::vector<Item>& items) {
    return items.size() < items.capacity();
}

} // namespace quorvia::host
