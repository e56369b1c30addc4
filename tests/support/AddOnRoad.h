// The road by which the add-on comes into the host: linked in, or as the built library. Each
// defines both functions, and a program has one of them.
#pragma once

#include <string>

namespace quorvia::testsupport {

/// Enters the add-on, once for the whole program. Empty, or what failed.
std::string bringAddOnIn();
/// Unloads what can be unloaded.
void takeAddOnOut();

} // namespace quorvia::testsupport
