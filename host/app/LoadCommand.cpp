#include "app/LoadCommand.h"

#include <algorithm>
#include <memory>
#include <ostream>

#include <fmt/core.h>

#include "app/HostSession.h"
#include "app/InterruptOnSignal.h"
#include "app/Output.h"
#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/Table.h"
#include "session/AddOnLibrary.h"
#include "session/AddOnPath.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

LoadResult importData(ReferenceHost& host, const LoadArguments_s& arguments) {
    if (arguments.usesInstructions())
        return host.importInstructions(composeInstructions(arguments));
    constexpr bool kWithoutDialog = false;
    constexpr bool kInPlaceOfTheDataSet = false;
    return host.importSelection(arguments.files, kWithoutDialog, kInPlaceOfTheDataSet);
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
    bool interrupted = false; // the load was
    bool fetchedAll = true;   // of the values that were wanted
};

Run_s carryOut(ReferenceHost& host, const LoadArguments_s& arguments, ProgressLine& progress) {
    const InterruptOnSignal interrupt;
    LoadResult result;
    const std::unique_ptr<AddOnLibrary> library =
        AddOnLibrary::open(addOnPath(arguments.addOnPath), result.hostError);
    if (library)
        result = importData(host, arguments);
    Run_s run{describeOutcome(host, result), result.interrupted};
    if (run.outcome.dataSet && wantsValues(arguments))
        run.fetchedAll = fetchAllValues(host, run.outcome, progress, interrupt);
    if (library)
        library->unload(); // tells what the add-on still holds
    updateLog(host, run.outcome);
    return run;
}

void tellWhyNot(const Outcome_s& outcome, bool interrupted, std::ostream& err) {
    const auto isError = [](const MessageOutcome_s& message) {
        return message.kind == MessageOutcome_e::Error;
    };
    if (outcome.hostError)
        tellError(err, *outcome.hostError);
    else if (interrupted)
        err << "quorhost: interrupted, nothing was loaded\n";
    else if (std::none_of(outcome.messages.begin(), outcome.messages.end(), isError))
        tellError(err, "the load was refused without a message");
}

void tellProblems(const Run_s& run, std::ostream& err) {
    if (!run.outcome.ok)
        tellWhyNot(run.outcome, run.interrupted, err);
    if (!run.fetchedAll)
        err << "quorhost: interrupted, not all values were fetched\n";
    for (const std::string& violation : run.outcome.violations)
        err << fmt::format("quorhost: contract violation: {}\n", violation);
}

/// False if it could not be written.
bool printResults(const LoadArguments_s& arguments, const Outcome_s& outcome,
                  const Console_s& console) {
    if (!arguments.jsonFile.empty() && !writeJson(toJson(outcome), arguments.jsonFile, console))
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
    return run.outcome.ok && run.fetchedAll && written ? ExitCode_e::Done : ExitCode_e::Failed;
}

} // namespace quorvia::host
