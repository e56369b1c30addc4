#include "desktop/CommandLine.h"

#include <algorithm>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/core.h>

namespace quorvia::host {
namespace {

constexpr int badUsage = 2;

constexpr const char* programDescription =
    "Imports PLOT3D files by hand: a window with the add-on's load dialog and a tree of what came "
    "in.";

constexpr const char* helpFooter =
    "Examples:\n"
    "  quorhost-desktop\n"
    "      opens the window; File > Import picks files\n"
    "  quorhost-desktop cylinder.x cylinder.q\n"
    "      opens it with a grid and its flow solution\n"
    "\n"
    "Exit codes:\n"
    "  0  the window was closed\n"
    "  1  there is no display, or something else stopped the program\n"
    "  2  bad usage\n";

} // namespace

std::variant<DesktopArguments_s, int>
parseDesktopCommandLine(std::vector<std::string> arguments, std::ostream& out, std::ostream& err) {
    CLI::App app(programDescription, "quorhost-desktop");
    app.set_version_flag("--version", "quorhost-desktop " QUORHOST_VERSION);
    app.get_formatter()->column_width(26);
    app.footer(helpFooter);
    DesktopArguments_s result;
    // The texts as they stand: the parser's own lists take brackets for a syntax of theirs.
    const auto takeFiles = [&result](const CLI::results_t& texts) {
        result.files = texts;
        return true;
    };
    constexpr int noLimit = -1;
    app.add_option("FILE", takeFiles, "Files to import at the start, as one selection")
        ->type_size(1)
        ->expected(1, noLimit)
        ->option_text("...")
        ->allow_extra_args();
    app.add_option("--addon", result.addOnPath,
                   "Another add-on library (default: the\nadd-on that is linked into the program)")
        ->type_name("PATH");
    try {
        std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
        app.parse(std::move(arguments));
        return result;
    } catch (const CLI::ParseError& end) {
        if (end.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success))
            return app.exit(end, out, err);
        err << fmt::format("quorhost-desktop: error: {}\nquorhost-desktop --help tells more.\n",
                           end.what());
        return badUsage;
    }
}

} // namespace quorvia::host
