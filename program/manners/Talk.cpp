#include "manners/Talk.h"

#include <ostream>

#include "console/Text.h"
#include "console/Words.h"

namespace plot3d::program {
namespace {

void tell(std::ostream& err, std::string_view kind, std::string_view text) {
    err << "plot3d: " << kind << console::onOneLine(text) << '\n';
}

std::string lineOf(const Error& error) {
    const ErrorFacts& facts = error.facts();
    std::string line = facts.file.empty() ? "" : facts.file + ": ";
    line += error.message();
    const bool goesOn = facts.byte || !facts.expected.empty() || !facts.found.empty();
    if (goesOn && line.ends_with('.'))
        line.pop_back();
    if (facts.byte)
        line += " at byte " + console::grouped(*facts.byte);
    if (!facts.expected.empty())
        line += ", expected " + facts.expected;
    if (!facts.found.empty())
        line += ", found " + facts.found;
    return line;
}

} // namespace

void tellError(std::ostream& err, std::string_view text) {
    tell(err, "error: ", text);
}

void tellError(std::ostream& err, const Error& error) {
    tellError(err, lineOf(error));
    if (!error.facts().next.empty())
        err << "try: " << console::onOneLine(error.facts().next) << '\n';
}

void tellWarning(const Surroundings_s& surroundings, std::string_view text) {
    if (!surroundings.quiet)
        tell(surroundings.err, "warning: ", text);
}

void tellNote(const Surroundings_s& surroundings, std::string_view text) {
    if (!surroundings.quiet)
        tell(surroundings.err, "", text);
}

ExitCode_e exitCodeOf(ErrorKind kind) {
    switch (kind) {
    case ErrorKind::Usage:
        return ExitCode_Usage;
    case ErrorKind::Unreadable:
        return ExitCode_Unreadable;
    case ErrorKind::Interrupted:
        return ExitCode_Interrupted;
    case ErrorKind::NotFound:
    case ErrorKind::NotPlot3D:
    case ErrorKind::Refused:
    case ErrorKind::Unsupported:
    case ErrorKind::NoMemory:
        break;
    }
    return ExitCode_Failed;
}

} // namespace plot3d::program
