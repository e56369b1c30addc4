// Makes one allocation of the whole test program fail, so that exhausted memory can be staged.
#pragma once

#include <cstddef>

namespace quorvia::testsupport {

/// The next operator new of at least so many bytes throws std::bad_alloc; all others work.
void failNextAllocation(std::size_t leastBytes = 0);

/// Takes a failure back that did not happen; whether there was one.
bool cancelAllocationFault();

} // namespace quorvia::testsupport
