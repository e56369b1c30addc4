// What the program says on standard error, each thing on a line of its own.
#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include <plot3d/Error.h>

#include "manners/Command.h"

namespace plot3d::program {

/// "plot3d: error: <text>".
void tellError(std::ostream& err, std::string_view text);

/// "plot3d: error: <file>: <message>, expected ..., found ...", and if it is known what to try next
/// "try: ..." on a second line.
void tellError(std::ostream& err, const Error& error);

/// "plot3d: warning: <text>", unless the user wants it quiet.
void tellWarning(const Surroundings_s& surroundings, std::string_view text);

/// "plot3d: <text>", likewise.
void tellNote(const Surroundings_s& surroundings, std::string_view text);

/// The exit code of a command that ends with such an error.
ExitCode_e exitCodeOf(ErrorKind kind);

} // namespace plot3d::program
