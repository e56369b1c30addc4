#include "support/AllocationFaults.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace quorvia::testsupport {

namespace {
bool isArmed = false;
std::size_t leastSize = 0;
} // namespace

/// Takes the failure out of the plan.
static bool isToFail(std::size_t size) {
    return size >= leastSize && cancelAllocationFault();
}

void failNextAllocation(std::size_t leastBytes) {
    leastSize = leastBytes;
    isArmed = true;
}

bool cancelAllocationFault() {
    return std::exchange(isArmed, false);
}

} // namespace quorvia::testsupport

void* operator new(std::size_t size) {
    if (quorvia::testsupport::isToFail(size))
        throw std::bad_alloc();
    if (void* block = std::malloc(size != 0 ? size : 1))
        return block;
    throw std::bad_alloc();
}

// Sanitizers have one of their own, which does not lead to ours.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return quorvia::testsupport::isToFail(size) ? nullptr : std::malloc(size != 0 ? size : 1);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
