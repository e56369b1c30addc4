// `quorhost macro`: a whole session at the reference host, played from a file.
#pragma once

#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/MacroArguments.h"

namespace quorvia::host {

/// Reads the macro, plays it if all of it is sound, and tells the outcome. Uses the one reference
/// host and leaves it reset. SIGINT is handled while it plays: it interrupts the load that runs and
/// ends the macro.
ExitCode_e runMacro(const MacroArguments_s& arguments, const Console_s& console);

} // namespace quorvia::host
