#include "app/Program.h"

#include <exception>
#include <iostream>
#include <new>

#include <plot3d/Error.h>
#include <unistd.h>

#include "app/CommandLine.h"
#include "app/StopOnSignal.h"
#include "console/Terminal.h"
#include "manners/Talk.h"

namespace plot3d::program {
namespace {

/// What did not reach its reader is a failure, even if all else went well.
int finished(int code, const Surroundings_s& surroundings) {
    surroundings.out.flush();
    if (surroundings.out)
        return code;
    tellError(surroundings.err, "standard output did not take everything");
    return code == ExitCode_Done ? ExitCode_Failed : code;
}

int toldOutcome(const std::vector<std::string>& arguments, const Surroundings_s& surroundings) {
    try {
        return finished(carryOut(arguments, surroundings), surroundings);
    } catch (const UsageError& error) {
        tellError(surroundings.err, error.what());
        return ExitCode_Usage;
    } catch (const Error& error) {
        if (error.kind() == ErrorKind::Interrupted)
            surroundings.err << "plot3d: stopped\n";
        else
            tellError(surroundings.err, error);
        return exitCodeOf(error.kind());
    } catch (const std::bad_alloc&) {
        surroundings.err << "plot3d: error: there is not enough memory\n";
        return ExitCode_Failed;
    } catch (const std::exception& error) {
        tellError(surroundings.err, error.what());
        return ExitCode_Failed;
    }
}

} // namespace

int run(const std::vector<std::string>& arguments, const Surroundings_s& surroundings) noexcept {
    try {
        return toldOutcome(arguments, surroundings);
    } catch (const std::exception&) { // there was no memory for the error line
        return ExitCode_Failed;
    }
}

int run(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
        std::ostream& err) noexcept {
    return run(arguments,
               Surroundings_s{in, out, err, 0, 0, false, ProgressWish_e::Auto, false, {}});
}

int runAtTerminal(const std::vector<std::string>& arguments) noexcept {
    std::ios::sync_with_stdio(false);
    StopOnSignal stop;
    return run(arguments, Surroundings_s{std::cin, std::cout, std::cerr,
                                         console::terminalColumns(STDOUT_FILENO),
                                         console::terminalColumns(STDERR_FILENO),
                                         console::wantsColour(STDOUT_FILENO), ProgressWish_e::Auto,
                                         false, stop.token()});
}

} // namespace plot3d::program
