// Copies for the log of the host, which must not fail: while there is no memory for one, it takes
// the room that was kept for it.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <new>
#include <utility>

namespace quorvia::host {

/// `Container` is a string or a vector.
template <typename Container>
class Spare {
public:
    explicit Spare(std::size_t capacity) : capacity_(capacity) { refill(); }

    /// The items of `range`. Without memory as many of the first as the spare room holds.
    template <typename Range>
    Container copyOf(const Range& range) noexcept {
        try {
            return Container(range.begin(), range.end());
        } catch (const std::bad_alloc&) {
            const auto count = std::min(range.size(), room_.capacity());
            room_.assign(range.begin(),
                         std::next(range.begin(), static_cast<std::ptrdiff_t>(count)));
            return std::exchange(room_, Container());
        }
    }
    /// Makes the room anew if it was used, as far as there is memory.
    void refill() noexcept {
        try {
            room_.reserve(capacity_);
        } catch (const std::bad_alloc&) { // the next time
        }
    }

private:
    std::size_t capacity_;
    Container room_;
};

} // namespace quorvia::host
