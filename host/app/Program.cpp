#include "app/Program.h"

#include <exception>
#include <ostream>

#include "app/CommandLine.h"
#include "app/LoadCommand.h"
#include "app/MacroCommand.h"

namespace quorvia::host {
namespace {

/// One overload for each subcommand, and one for a command line that asks for nothing more.
struct CarryOut_s {
    const Console_s& console;

    ExitCode_e operator()(const LoadArguments_s& arguments) const {
        return runLoad(arguments, console);
    }
    ExitCode_e operator()(const MacroArguments_s& arguments) const {
        return runMacro(arguments, console);
    }
    ExitCode_e operator()(ExitCode_e code) const { return code; }
};

/// The text goes out as it is if there is no memory for the form of an error line.
void tellFailure(std::ostream& err, const char* what) {
    try {
        tellError(err, what);
    } catch (const std::exception&) {
        err << "quorhost: error: " << what << '\n';
    }
}

} // namespace

int run(const std::vector<std::string>& arguments, const Console_s& console) noexcept {
    try {
        const Command command = parseCommandLine(arguments, console.out, console.err);
        return static_cast<int>(std::visit(CarryOut_s{console}, command));
    } catch (const std::exception& failure) {
        tellFailure(console.err, failure.what());
        return static_cast<int>(ExitCode_e::Failed);
    }
}

} // namespace quorvia::host
