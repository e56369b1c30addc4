#include "app/MacroCommand.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
#include <ostream>
#include <sstream>

#include <fmt/core.h>

#include "app/HostSession.h"
#include "app/InterruptOnSignal.h"
#include "app/Output.h"
#include "app/macro/MacroParser.h"
#include "app/macro/MacroPlayer.h"
#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/Table.h"
#include "describe/TextGrid.h"
#include "session/AddOnPath.h"

namespace quorvia::host {
namespace {

/// Nothing, and `error` says why, if the file can't be read.
std::optional<std::string> contentsOf(const std::string& file, std::string& error) {
    errno = 0;
    const std::ifstream in(file, std::ios::binary);
    std::ostringstream text;
    if (in && text << in.rdbuf())
        return text.str();
    error = fmt::format("it can't be read: {}", errno != 0 ? std::strerror(errno) : "it is empty");
    return std::nullopt;
}

std::optional<Macro_s> readMacro(const std::string& file, std::string& error) {
    const std::optional<std::string> text = contentsOf(file, error);
    return text ? parseMacro(*text, error) : std::nullopt;
}

struct Played_s {
    PlayedMacro_s macro;
    bool interrupted = false; // by the user
};

Played_s play(const Macro_s& macro, const MacroArguments_s& arguments, const Console_s& console) {
    ProgressLine progress(console);
    const HostSession session(console, progress, defaultMemoryLimitBytes);
    const InterruptOnSignal interrupt;
    PlaySettings_s settings{addOnPath(arguments.addOnPath), arguments.answerYes};
    settings.mayGoOn = [&interrupt] { return !interrupt.happened(); };
    settings.fetchObserver = [&interrupt, &progress](std::int64_t done, std::int64_t total) {
        progress.show(static_cast<double>(done) / static_cast<double>(total), "Fetching values");
        return !interrupt.happened();
    };
    return {playMacro(macro, settings, session.host()), interrupt.happened()};
}

void tellProblems(const Played_s& played, const std::string& file, std::ostream& err) {
    const Outcome_s& outcome = played.macro.session.final;
    if (!played.macro.problem.empty())
        tellError(err, fmt::format("{}: {}", file, played.macro.problem));
    if (outcome.hostError)
        tellError(err, *outcome.hostError);
    if (played.macro.lastLoadLeftOut)
        tellError(err, "the last load came in, but with an error: something was left out");
    const std::int64_t unread = unreadFieldCount(outcome);
    if (unread > 0)
        tellError(err, fmt::format("at the end {} {} could not be read", unread,
                                   unread == 1 ? "field" : "fields"));
    if (played.interrupted)
        err << "quorhost: interrupted, the rest of the macro was not played\n";
    for (const std::string& violation : outcome.violations)
        err << fmt::format("quorhost: contract violation: {}\n", violation);
}

void printAccount(const PlayedMacro_s& played, std::ostream& out) {
    TextGrid commands({{"#", TextGrid::Align_e::Right}, {"command"}, {"outcome"}});
    std::size_t number = 0;
    for (const CommandAccount_s& account : played.account)
        commands.addRow({std::to_string(++number), account.command, account.ending});
    out << "Commands\n";
    commands.print(out);
    out << '\n';
    printTable(played.session.final, out);
}

bool printResults(const MacroArguments_s& arguments, const PlayedMacro_s& played,
                  const Console_s& console) {
    const auto json = [&played](std::ostream& out) { writeJson(played.session, out); };
    if (!arguments.jsonFile.empty() && !writeJsonTo(arguments.jsonFile, console, json))
        return false;
    if (!arguments.jsonToOutput())
        printAccount(played, console.out);
    return finishOutput(console);
}

ExitCode_e exitCodeOf(const Played_s& played, bool written) {
    const Outcome_s& outcome = played.macro.session.final;
    if (played.interrupted)
        return ExitCode_e::Interrupted;
    if (!played.macro.complete || !outcome.ok || played.macro.lastLoadLeftOut || !written)
        return ExitCode_e::Failed;
    return unreadFieldCount(outcome) > 0 ? ExitCode_e::FieldsUnread : ExitCode_e::Done;
}

} // namespace

ExitCode_e runMacro(const MacroArguments_s& arguments, const Console_s& console) {
    std::string error;
    const std::optional<Macro_s> macro = readMacro(arguments.file, error);
    if (!macro) {
        tellError(console.err, fmt::format("{}: {}", arguments.file, error));
        return ExitCode_e::BadUsage;
    }
    const Played_s played = play(*macro, arguments, console);
    tellProblems(played, arguments.file, console.err);
    const bool written = printResults(arguments, played.macro, console);
    return exitCodeOf(played, written);
}

} // namespace quorvia::host
