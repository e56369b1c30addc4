// How much memory a load asks for: every operator new of the program, the built library's included.
// Values of fields are the host's and stand in its own ledger.
#pragma once

#include <cstdint>

namespace quorvia::testsupport {

/// Counts from nothing again.
void restartMemoryCount();
/// The most bytes that were held at one moment since then, beyond those held before.
std::int64_t peakMemoryBytes();

} // namespace quorvia::testsupport
