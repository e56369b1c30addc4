// Makes one read of the whole test program fail as a bad disk does, the built library's included.
#pragma once

#include <cstdint>

namespace quorvia::testsupport {

/// The n-th read from now, counted from 1, fails; those after it work.
void failRead(std::int64_t n);

/// Takes a failure back that did not happen; whether there was one.
bool cancelReadFault();

} // namespace quorvia::testsupport
