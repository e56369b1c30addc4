// Where the program writes: results to one stream, talk to the other, and a progress bar on the
// latter if a person is watching.
#pragma once

#include <iosfwd>
#include <string_view>

#include "console/ProgressLine.h"
#include "describe/Outcome.h"

namespace quorvia::host {

/// The streams are borrowed.
struct Console_s {
    std::ostream& out;
    std::ostream& err;
    int progressColumns = 0; // width of the terminal behind `err`; 0: it is none, show no progress
};

/// Standard output and standard error.
Console_s standardConsole();

/// Errors as `quorhost: error: <text>`, further lines of a text indented below; each text ends its
/// line. Information and questions likewise, with their answers.
void tellError(std::ostream& err, std::string_view text);
void tellMessage(std::ostream& err, const Message_s& message);

} // namespace quorvia::host
