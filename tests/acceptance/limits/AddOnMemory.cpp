#include "AddOnMemory.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include <malloc.h>

namespace {

// The add-on runs on the thread of the test, and nothing else allocates beside it.
std::int64_t heldBytes = 0;
std::int64_t peakBytes = 0;

} // namespace

namespace quorvia::testsupport {

void restartMemoryCount() {
    heldBytes = 0;
    peakBytes = 0;
}

std::int64_t peakMemoryBytes() {
    return peakBytes;
}

} // namespace quorvia::testsupport

// The dynamic library finds these ahead of the C++ library's.
void* operator new(std::size_t size) {
    void* block = std::malloc(size != 0 ? size : 1);
    if (block == nullptr)
        throw std::bad_alloc();
    heldBytes += static_cast<std::int64_t>(malloc_usable_size(block));
    peakBytes = std::max(peakBytes, heldBytes);
    return block;
}

// Sanitizers have one of their own, which does not lead to ours.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* block) noexcept {
    if (block != nullptr)
        heldBytes -= static_cast<std::int64_t>(malloc_usable_size(block));
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    operator delete(block);
}
