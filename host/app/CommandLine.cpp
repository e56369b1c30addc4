#include "app/CommandLine.h"

#include <algorithm>
#include <ostream>

#include <CLI/CLI.hpp>
#include <fmt/core.h>

#include "app/Settings.h"

namespace quorvia::host {
namespace {

constexpr const char* programDescription =
    "Loads PLOT3D data sets through the data-loader add-on, outside the host that the\n"
    "add-on was made for, and reports how each load came out.";

constexpr const char* examples =
    "Examples:\n"
    "  quorhost load wing.x wing.q\n"
    "      a wing's grid and its flow solution, with the ranges of all variables\n"
    "  quorhost load --grid vortex.g --solution vortex.0100.q --solution vortex.0200.q \\\n"
    "      --set ASSIGNSTRANDIDS=Yes --json outcome.json\n"
    "      two time steps of a vortex on one grid, and the outcome for a program\n"
    "\n"
    "Exit codes:\n"
    "  0    loaded\n"
    "  1    refused or failed, or a file was left out of the load\n"
    "  2    bad usage\n"
    "  3    loaded, but the values of some fields can't be read\n"
    "  130  interrupted\n";

constexpr const char* macroNotes =
    "FILE holds {\"commands\": [...]} with one object for each command: select, instructions,\n"
    "replay, answers, dialog, host, dataSet, interruptAtStep, fail, stateChange, fetch,\n"
    "unload, deleteZones, resetFrame, describe. docs/macros.md describes them all.\n"
    "\n"
    "Examples:\n"
    "  quorhost macro session.json\n"
    "      plays the session and shows what each command did and what is there at the end\n"
    "  quorhost macro session.json --yes --json outcome.json\n"
    "      answers every question with OK or Yes, and writes each outcome for a program\n"
    "\n"
    "Exit codes:\n"
    "  0    played, and the last load came in, or there was none\n"
    "  1    the last load was refused, failed or left a file out, or a command can't be\n"
    "       carried out\n"
    "  2    bad usage, or a bad macro, of which nothing was played\n"
    "  3    as 0, but the values of some fields can't be read at the end\n"
    "  130  interrupted\n";

/// The options before they are checked.
struct RawLoad_s {
    LoadArguments_s load;
    std::vector<std::string> settings;
    std::string memoryLimit = "1G";
    bool withoutValues = false;
};

/// The texts go into the list as they stand: the parser's own lists would take brackets and braces
/// in file names for a syntax of theirs.
CLI::Option* addList(CLI::App& app, const std::string& name, std::vector<std::string>& list,
                     const std::string& description) {
    const auto take = [&list](const CLI::results_t& texts) {
        list = texts;
        return true;
    };
    constexpr int noLimit = -1;
    return app.add_option(name, take, description)->type_size(1)->expected(1, noLimit);
}

void addRepeatable(CLI::App& app, const std::string& name, std::vector<std::string>& list,
                   const std::string& valueName, const std::string& description) {
    constexpr bool oneForEachMention = false;
    addList(app, name, list, description)
        ->type_name(valueName)
        ->option_text(valueName)
        ->allow_extra_args(oneForEachMention);
}

void describeInput(CLI::App& app, RawLoad_s& raw) {
    LoadArguments_s& load = raw.load;
    addList(app, "FILE", load.files,
            "Files as picked in the host's import file\nselection; their kinds go by their names")
        ->option_text("...")
        ->allow_extra_args();
    addRepeatable(app, "--grid", load.gridFiles, "FILE",
                  "A grid file, given as a load instruction;\nrepeatable");
    addRepeatable(app, "--solution", load.solutionFiles, "FILE",
                  "A solution file, likewise; repeatable");
    addRepeatable(app, "--function", load.functionFiles, "FILE",
                  "A function file, likewise; repeatable");
    addRepeatable(app, "--name", load.nameFiles, "FILE",
                  "A name file, likewise; repeatable, and the\nlast one counts");
    addRepeatable(app, "--set", raw.settings, "KEY=VALUE",
                  "One more instruction behind the file lists,\ne.g. AUTODETECT=No; repeatable; "
                  "not with FILE");
}

void addAddOn(CLI::App& app, std::string& path) {
    app.add_option("--addon", path,
                   "Another add-on library (default:\n../lib/plot3dloader.so from the program)")
        ->type_name("PATH");
}

void describeHost(CLI::App& app, RawLoad_s& raw) {
    app.add_flag("--yes", raw.load.answerYes,
                 "Answer every question with OK or Yes\n(default: Cancel or No, and say so)");
    app.add_option(
           "--memory-limit", raw.memoryLimit,
           "Budget for field values in bytes, or with K, M,\nG in 1024, 1024^2, 1024^3 bytes "
           "(default: 1G)")
        ->type_name("SIZE");
    app.add_flag("--no-values", raw.withoutValues,
                 "Do not fetch the fields (default: fetch all,\nfor ranges and checksums)");
    addAddOn(app, raw.load.addOnPath);
}

void describeOutput(CLI::App& app, RawLoad_s& raw) {
    app.add_flag(
        "--instructions", raw.load.printInstructions,
        "Print the instructions that repeat this load,\none string to a line, and no table");
    app.add_option("--json", raw.load.jsonFile,
                   "Write the whole outcome as JSON; - is standard\noutput, in place of the table")
        ->type_name("FILE");
}

void describeLoad(CLI::App& app, RawLoad_s& raw) {
    describeInput(app, raw);
    describeHost(app, raw);
    describeOutput(app, raw);
    app.footer(examples);
}

void describeMacro(CLI::App& app, MacroArguments_s& macro) {
    app.add_option("FILE", macro.file, "The macro, as JSON")->required()->option_text(" ");
    app.add_option("--json", macro.jsonFile,
                   "Write every outcome as JSON; - is standard\noutput, in place of the account")
        ->type_name("FILE");
    app.add_flag("--yes", macro.answerYes,
                 "Answer the questions behind the macro's own\nanswers with OK or Yes (default: "
                 "Cancel or No)");
    addAddOn(app, macro.addOnPath);
    app.footer(macroNotes);
}

[[noreturn]] void refuse(const std::string& what) {
    throw CLI::ValidationError(what);
}

bool hasLists(const LoadArguments_s& load) {
    return !load.gridFiles.empty() || !load.solutionFiles.empty() || !load.functionFiles.empty() ||
           !load.nameFiles.empty();
}

void refuseMixedRoutes(const RawLoad_s& raw) {
    const LoadArguments_s& load = raw.load;
    if (!load.files.empty() && hasLists(load))
        refuse(
            "FILE can't be combined with --grid, --solution, --function or --name: the first is a "
            "selection, the others are instructions");
    if (!raw.settings.empty() && !hasLists(load))
        refuse(
            "--set adds to a list of instructions, so it needs --grid, --solution, --function or "
            "--name, and no FILE");
    if (load.files.empty() && !hasLists(load))
        refuse("nothing to load: give FILE..., or --grid, --solution and --function");
    if (load.printInstructions && load.jsonToOutput())
        refuse("--instructions and --json - both want standard output: give --json a file");
}

LoadArguments_s checkedLoad(RawLoad_s& raw) {
    refuseMixedRoutes(raw);
    for (const std::string& text : raw.settings) {
        auto setting = parseSetting(text);
        if (!setting)
            refuse(fmt::format("--set: \"{}\" is not KEY=VALUE", text));
        const std::string problem = settingProblem(setting->first, setting->second);
        if (!problem.empty())
            refuse(fmt::format("--set: {}", problem));
        raw.load.settings.push_back(std::move(*setting));
    }
    const auto limit = parseMemorySize(raw.memoryLimit);
    if (!limit)
        refuse(fmt::format("--memory-limit: \"{}\" is no size: give a number of bytes above 0, or "
                           "one with K, M or G behind it, e.g. 512M",
                           raw.memoryLimit));
    raw.load.memoryLimitBytes = *limit;
    raw.load.fetchValues = !raw.withoutValues;
    return std::move(raw.load);
}

ExitCode_e tellParseEnd(const CLI::App& app, const CLI::ParseError& end, std::ostream& out,
                        std::ostream& err) {
    if (end.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) { // help or version
        app.exit(end, out, err);
        return ExitCode_e::Done;
    }
    std::string text = end.what();
    std::replace(text.begin(), text.end(), '\n', ' ');
    const auto chosen = app.get_subcommands();
    err << fmt::format("quorhost: error: {}\nquorhost{} --help tells more.\n", text,
                       chosen.empty() ? "" : ' ' + chosen.front()->get_name());
    return ExitCode_e::BadUsage;
}

} // namespace

Command parseCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                         std::ostream& err) {
    CLI::App app(programDescription, "quorhost");
    app.set_version_flag("--version", "quorhost " QUORHOST_VERSION);
    app.require_subcommand(0, 1); // a missing one gets a text of ours
    app.get_formatter()->column_width(26);
    app.footer(examples);
    RawLoad_s raw;
    MacroArguments_s macro;
    describeLoad(*app.add_subcommand("load", "Load one data set and tell how it came out"), raw);
    const CLI::App* macroCommand =
        app.add_subcommand("macro", "Play a session of several loads from a file");
    describeMacro(*app.get_subcommand("macro"), macro);
    try {
        // The parser takes arguments from the back.
        app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        if (app.get_subcommands().empty())
            refuse("nothing to do: give the command load or macro");
        if (macroCommand->parsed())
            return macro;
        return checkedLoad(raw);
    } catch (const CLI::ParseError& end) {
        return tellParseEnd(app, end, out, err);
    }
}

} // namespace quorvia::host
