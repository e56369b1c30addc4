// Stands in for malloc and calloc, from which the host takes the blocks that it gives to guests.
#include <cstddef>

#include "support/AllocationFaults.h"

void quorvia::testsupport::countCAllocations() {
#ifndef __SANITIZE_ADDRESS__
    leaveCountingToMalloc();
#endif
}

#ifndef __SANITIZE_ADDRESS__

extern "C" {

// The C library's own.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);

void* malloc(std::size_t size) {
    using namespace quorvia::testsupport;
    return areCAllocationsCounted() && failsHere() ? nullptr : __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
    using namespace quorvia::testsupport;
    return areCAllocationsCounted() && failsHere() ? nullptr : __libc_calloc(count, size);
}

} // extern "C"

#endif
