// Makes allocations of the whole test program fail, so that exhausted memory can be staged. Only
// operator new counts, unless the program is linked with c_allocation_faults and asks for more.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>

namespace quorvia::testsupport {

/// The next operator new of at least so many bytes throws std::bad_alloc; all others work.
void failNextAllocation(std::size_t leastBytes = 0);

/// Takes a failure back that did not happen; whether there was one.
bool cancelAllocationFault();

enum class FaultSpan_e { Once, FromThenOn };

/// The `n`-th allocation from now, from 1, fails: it alone, or it and all after it. Replaces what
/// was asked for before.
void failAllocation(std::int64_t n, FaultSpan_e span);
/// From now on all allocations work; whether one has failed since.
bool endAllocationFaults();

/// From now on malloc and calloc count as well. Only in programs linked with c_allocation_faults,
/// and nothing more than before under a sanitizer, which has a malloc of its own.
void countCAllocations();

/// For those that stand in for an allocator: counts one allocation; true if it is to fail.
bool failsHere(std::size_t bytes = std::numeric_limits<std::size_t>::max());
/// Whether malloc and calloc count, and operator new only as far as it calls them.
bool areCAllocationsCounted();
void leaveCountingToMalloc();

} // namespace quorvia::testsupport
