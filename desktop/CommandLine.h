// The command line of `quorhost-desktop`.
#pragma once

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

namespace quorvia::host {

struct DesktopArguments_s {
    std::string addOnPath;          // empty: the add-on that is linked in
    std::vector<std::string> files; // to import at the start, in one selection
};

/// What to open, or the exit code if there is nothing left to do: 0 after help and version, 2 for
/// bad usage, which `err` is told of. `arguments` are those behind the program's name.
std::variant<DesktopArguments_s, int> parseDesktopCommandLine(std::vector<std::string> arguments,
                                                              std::ostream& out, std::ostream& err);

} // namespace quorvia::host
