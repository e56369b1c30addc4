// The program `quorhost`: the reference host at the command line. docs/architecture.md shows where
// it stands; parseCommandLine() says what it takes.
#pragma once

#include <string>
#include <vector>

#include "app/Console.h"

namespace quorvia::host {

/// Carries out one command line; `arguments` are those behind the program's name. Gives the exit
/// code (ExitCode_e). Throws nothing.
int run(const std::vector<std::string>& arguments, const Console_s& console) noexcept;

} // namespace quorvia::host
