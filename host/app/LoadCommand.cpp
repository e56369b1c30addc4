#include "app/LoadCommand.h"

#include <algorithm>
#include <memory>
#include <ostream>
#include <span>

#include <fmt/core.h>
#include <fmt/ranges.h>

#include "app/HostSession.h"
#include "app/InterruptOnSignal.h"
#include "app/LeftOut.h"
#include "app/Output.h"
#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/Table.h"
#include "describe/TextGrid.h"
#include "describe/ValueFetch.h"
#include "session/AddOnLibrary.h"
#include "session/AddOnPath.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

LoadResult_s importData(ReferenceHost& host, const LoadArguments_s& arguments) {
    if (arguments.usesInstructions())
        return host.importInstructions(composeInstructions(arguments));
    constexpr bool withoutDialog = false;
    constexpr bool inPlaceOfTheDataSet = false;
    return host.importSelection(arguments.files, withoutDialog, inPlaceOfTheDataSet);
}

bool wantsValues(const LoadArguments_s& arguments) {
    const bool onlyInstructions = arguments.printInstructions && arguments.jsonFile.empty();
    return arguments.fetchValues && !onlyInstructions;
}

/// False if the user ended the fetching.
bool fetchAllValues(ReferenceHost& host, Outcome_s& outcome, ProgressLine& progress,
                    const InterruptOnSignal& interrupt) {
    const bool complete = fetchValues(
        host, *outcome.dataSet, [&progress, &interrupt](std::int64_t done, std::int64_t total) {
            progress.show(static_cast<double>(done) / static_cast<double>(total),
                          "Fetching values");
            return !interrupt.happened();
        });
    progress.clear();
    return complete && !interrupt.happened();
}

/// One load from the opening of the library to its end.
struct Run_s {
    Outcome_s outcome;
    bool interrupted = false;            // the load was
    bool fetchedAll = true;              // of the values that were wanted
    bool leftSomethingOut = false;       // of a load that came in
    std::vector<std::string> notNamed{}; // files of the selection that it left out
    std::vector<std::string> ofNoKind{}; // files of the selection whose names tell no kind
};

void noteLeftOut(const ReferenceHost& host, const LoadArguments_s& arguments, Run_s& run) {
    if (!host.loaders().empty())
        run.ofNoKind = filesOfNoKind(arguments.files, host.loaders().back().fileNameExtensions);
    if (!run.outcome.ok)
        return;
    run.notNamed = filesNotNamed(arguments.files, run.outcome.instructions);
    run.leftSomethingOut = !run.notNamed.empty() || toldAnError(run.outcome);
}

Run_s carryOut(ReferenceHost& host, const LoadArguments_s& arguments, ProgressLine& progress) {
    const InterruptOnSignal interrupt;
    LoadResult_s result;
    const std::unique_ptr<AddOnLibrary> library =
        AddOnLibrary::open(addOnPath(arguments.addOnPath), result.hostError);
    if (library)
        result = importData(host, arguments);
    Run_s run{describeOutcome(host, result), result.interrupted};
    noteLeftOut(host, arguments, run);
    if (run.outcome.dataSet && wantsValues(arguments))
        run.fetchedAll = fetchAllValues(host, run.outcome, progress, interrupt);
    if (library)
        library->unload(); // tells what the add-on still holds
    updateLog(host, run.outcome);
    return run;
}

void tellWhyNot(const Outcome_s& outcome, bool interrupted, std::ostream& err) {
    if (outcome.hostError)
        tellError(err, *outcome.hostError);
    else if (interrupted)
        err << "quorhost: interrupted, nothing was loaded\n";
    else if (!toldAnError(outcome))
        tellError(err, "the load was refused without a message");
}

/// "a.bin, b.bin and 3 more".
std::string someOf(const std::vector<std::string>& files) {
    constexpr std::size_t mostShown = 3;
    const std::span<const std::string> shown(files.data(), std::min(files.size(), mostShown));
    std::string text = fmt::format("{}", fmt::join(shown, ", "));
    if (shown.size() < files.size())
        text += fmt::format(" and {} more", files.size() - shown.size());
    return text;
}

void tellLeftOut(const Run_s& run, std::ostream& err) {
    if (!run.notNamed.empty())
        tellError(err, fmt::format("left out of the load: {}", someOf(run.notNamed)));
    else if (run.leftSomethingOut)
        tellError(err, "the load came in, but with the error above: something was left out");
    if (!run.ofNoKind.empty())
        err << fmt::format(
            "quorhost: the kind of {} can't be told by its name: give every file with --grid, "
            "--solution, --function or --name\n",
            onOneLine(someOf(run.ofNoKind)));
}

void tellUnread(std::int64_t count, std::ostream& err) {
    if (count > 0)
        tellError(err, fmt::format("{} {} could not be read; the table and the JSON list them",
                                   count, count == 1 ? "field" : "fields"));
}

void tellProblems(const Run_s& run, std::ostream& err) {
    if (!run.outcome.ok)
        tellWhyNot(run.outcome, run.interrupted, err);
    tellLeftOut(run, err);
    tellUnread(unreadFieldCount(run.outcome), err);
    if (!run.fetchedAll)
        err << "quorhost: interrupted, not all values were fetched\n";
    for (const std::string& violation : run.outcome.violations)
        err << fmt::format("quorhost: contract violation: {}\n", violation);
}

ExitCode_e exitCodeOf(const Run_s& run, bool written) {
    if ((run.interrupted && !run.outcome.ok) || !run.fetchedAll)
        return ExitCode_e::Interrupted;
    if (!run.outcome.ok || run.leftSomethingOut || !written)
        return ExitCode_e::Failed;
    return unreadFieldCount(run.outcome) > 0 ? ExitCode_e::FieldsUnread : ExitCode_e::Done;
}

/// False if it could not be written.
bool printResults(const LoadArguments_s& arguments, const Outcome_s& outcome,
                  const Console_s& console) {
    const auto json = [&outcome](std::ostream& out) { writeJson(outcome, out); };
    if (!arguments.jsonFile.empty() && !writeJsonTo(arguments.jsonFile, console, json))
        return false;
    if (arguments.printInstructions) {
        for (const std::string& instruction : outcome.instructions)
            console.out << instruction << '\n';
    } else if (outcome.dataSet && !arguments.jsonToOutput()) {
        printTable(outcome, console.out);
    }
    return finishOutput(console);
}

} // namespace

ExitCode_e runLoad(const LoadArguments_s& arguments, const Console_s& console) {
    ProgressLine progress(console);
    const HostSession session(console, progress, arguments.memoryLimitBytes);
    session.host().setAnswers({}, arguments.answerYes);
    const Run_s run = carryOut(session.host(), arguments, progress);
    progress.clear();
    tellProblems(run, console.err);
    const bool written = printResults(arguments, run.outcome, console);
    return exitCodeOf(run, written);
}

} // namespace quorvia::host
