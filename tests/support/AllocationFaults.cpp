#include "support/AllocationFaults.h"

#include <cstdlib>
#include <new>
#include <utility>

namespace quorvia::testsupport {

namespace {

std::int64_t gUntilFault = 0; // 0 while none is asked for
std::size_t gLeastBytes = 0;  // smaller allocations are not counted
FaultSpan_e gSpan = FaultSpan_e::Once;
bool gHasFailed = false;
bool gCountsC = false;

/// malloc counts for what goes through it.
bool failsInNew(std::size_t bytes) {
    return !gCountsC && failsHere(bytes);
}

void* blockOf(std::size_t size) {
    return std::malloc(size != 0 ? size : 1);
}

} // namespace

bool failsHere(std::size_t bytes) {
    if (gUntilFault == 0 || bytes < gLeastBytes || --gUntilFault > 0)
        return false;
    gHasFailed = true;
    if (gSpan == FaultSpan_e::FromThenOn)
        gUntilFault = 1;
    return true;
}

void failAllocation(std::int64_t n, FaultSpan_e span) {
    gUntilFault = n;
    gLeastBytes = 0;
    gSpan = span;
    gHasFailed = false;
}

bool endAllocationFaults() {
    gUntilFault = 0;
    return std::exchange(gHasFailed, false);
}

void failNextAllocation(std::size_t leastBytes) {
    failAllocation(1, FaultSpan_e::Once);
    gLeastBytes = leastBytes;
}

bool cancelAllocationFault() {
    return std::exchange(gUntilFault, 0) != 0;
}

void leaveCountingToMalloc() {
    gCountsC = true;
}

bool areCAllocationsCounted() {
    return gCountsC;
}

} // namespace quorvia::testsupport

void* operator new(std::size_t size) {
    if (!quorvia::testsupport::failsInNew(size))
        if (void* block = quorvia::testsupport::blockOf(size))
            return block;
    throw std::bad_alloc();
}

// Sanitizers have one of their own, which does not lead to ours.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return quorvia::testsupport::failsInNew(size) ? nullptr : quorvia::testsupport::blockOf(size);
}

void operator delete(void* block) noexcept {
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
    std::free(block);
}
