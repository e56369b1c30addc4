// The program `quorhost`: the reference host at the command line. docs/architecture.md shows where
// it stands; parseCommandLine() says what it takes.
#pragma once

#include <string>
#include <vector>

#include "app/Console.h"

namespace quorvia::host {

/// Carries out one command line; `arguments` are those behind the program's name. Gives the exit
/// code: 0 loaded, 1 refused, failed or interrupted, 2 bad usage or a bad macro. Throws nothing.
int run(const std::vector<std::string>& arguments, const Console_s& console) noexcept;

} // namespace quorvia::host
