// `quorhost load`: one load through an add-on library in the reference host, and what came of it.
#pragma once

#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/LoadArguments.h"

namespace quorvia::host {

/// Loads, fetches the values, unloads the library and tells the outcome. Uses the one reference
/// host and leaves it reset. SIGINT is handled for as long as it runs.
ExitCode_e runLoad(const LoadArguments_s& arguments, const Console_s& console);

} // namespace quorvia::host
