// The command line of `quorhost`: what it offers, its help, and what of it is bad usage.
#pragma once

#include <iosfwd>
#include <string>
#include <variant>
#include <vector>

#include "app/LoadArguments.h"
#include "app/MacroArguments.h"

namespace quorvia::host {

enum class ExitCode_e : int {
    Done = 0,         // loaded; help or version was shown
    Failed = 1,       // refused or failed, or something was left out of the load
    BadUsage = 2,     // the command line or the macro can't be carried out
    FieldsUnread = 3, // loaded, but the values of some fields can't be read
    Interrupted = 130 // by the user, as shells tell it of a program that SIGINT has ended
};

/// One alternative for each subcommand, or the exit code if there is nothing left to do.
using Command = std::variant<LoadArguments_s, MacroArguments_s, ExitCode_e>;

/// `arguments` are those behind the program's name. Help and version go to `out`; what is wrong
/// with the command line goes to `err`, in one line and a hint.
Command parseCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                         std::ostream& err);

} // namespace quorvia::host
