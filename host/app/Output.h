// Results on their way out of the program.
#pragma once

#include <string>
#include <string_view>

#include "app/Console.h"

namespace quorvia::host {

/// Writes `json` to the file, in place of one that is there, or to standard output for "-". False:
/// it can't be written, and standard error tells why.
bool writeJson(std::string_view json, const std::string& file, const Console_s& console);

/// False: standard output didn't take everything, and standard error tells so.
bool finishOutput(const Console_s& console);

} // namespace quorvia::host
