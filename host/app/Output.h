// Results on their way out of the program.
#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "app/Console.h"

namespace quorvia::host {

/// Writes what `write` gives to the file, or to standard output for "-". A file that is there is
/// replaced when the new one is whole, and not before. False: it can't be written, and standard
/// error tells why.
bool writeJsonTo(const std::string& file, const Console_s& console,
                 const std::function<void(std::ostream&)>& write);

/// False: standard output didn't take everything, and standard error tells so.
bool finishOutput(const Console_s& console);

} // namespace quorvia::host
