#include "info/InfoCommand.h"

#include <utility>

#include <CLI/CLI.hpp>
#include <plot3d/Error.h>

#include "manners/Options.h"

namespace plot3d::program {

InfoCommand::InfoCommand()
    : InfoCommand([](const std::string& file, const InspectOptions&, const Watch&) -> FileInfo {
          throw Error(ErrorKind::Unsupported, "can't be looked at yet", {.file = file});
      }) {}

InfoCommand::InfoCommand(Inspect inspect) : inspect_(std::move(inspect)) {}

const char* InfoCommand::purpose() const {
    return "Tell what PLOT3D files are, and what is wrong with those that can't be read";
}

const char* InfoCommand::examples() const {
    return "  plot3d info wing.x wing.q\n"
           "      what the two files are, and whether they are whole\n"
           "  plot3d info --why --as grid strange.bin\n"
           "      every reading as a grid that was tried, and what did not fit\n"
           "  find . -name '*.q' | plot3d info --json -\n"
           "      all solutions of a folder, for a program\n";
}

const char* InfoCommand::failureMeans() const {
    return "a file is no whole PLOT3D file";
}

void InfoCommand::declare(CLI::App& app) {
    addFiles(app, files_,
             "Files of any kind: grid, solution, function, boundary or name file; - reads their "
             "names from standard input, one to a line")
        ->required();
    app.add_flag("--why", why_,
                 "Show every reading that was tried, in its order, with the first thing that did "
                 "not fit, and what else the bytes could mean");
    app.add_option("--as", as_, "Take the files for this kind, whatever their names say")
        ->type_name("grid|solution|function");
    app.add_flag("--all", all_, "Show long lists whole");
    app.add_flag("--json", json_, "Write all as JSON, in the schema plot3d.info/1");
}

int InfoCommand::run(const Surroundings_s& surroundings) {
    inspect_(files_.front(), {}, {});
    surroundings.out << "";
    return ExitCode_Done;
}

} // namespace plot3d::program
