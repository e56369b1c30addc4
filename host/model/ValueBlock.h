// One block of memory for the values of a field or the nodes of a node map. Blocks come straight
// from the C allocator: it hands out large blocks as untouched pages, so that a zeroed field costs
// nothing before someone writes to it, and an array that a guest is about to fill is never cleared
// first.
#pragma once

#include <cstdint>
#include <memory>

namespace quorvia::host {

class ValueBlock {
public:
    ValueBlock() = default;

    /// In bytes. No machine has so much; sizes beyond it are mistakes, for which some allocators
    /// end the program.
    static constexpr std::int64_t largest = std::int64_t{1} << 39;

    /// Blocks of `byteCount` bytes, aligned for any number; empty if there is no memory, if the
    /// count is negative, or if it is above `largest`. A block of no bytes is a
    /// block all the same: its address is not null.
    static ValueBlock zeroed(std::int64_t byteCount);
    static ValueBlock uninitialised(std::int64_t byteCount);

    explicit operator bool() const { return bytes_ != nullptr; }
    void* data() const { return bytes_.get(); }
    std::int64_t byteCount() const { return bytes_ != nullptr ? byteCount_ : 0; }
    void reset() { bytes_.reset(); }

private:
    class Free {
    public:
        void operator()(void* bytes) const;
    };
    ValueBlock(void* bytes, std::int64_t byteCount) : bytes_(bytes), byteCount_(byteCount) {}

    std::unique_ptr<void, Free> bytes_;
    std::int64_t byteCount_ = 0;
};

} // namespace quorvia::host
