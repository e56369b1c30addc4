// Makes one allocation of the whole test program fail, so that exhausted memory can be staged.
#pragma once

namespace quorvia::testsupport {

/// The next operator new throws std::bad_alloc; those after it work.
void failNextAllocation();

/// Takes a failure back that did not happen; whether there was one.
bool cancelAllocationFault();

} // namespace quorvia::testsupport
