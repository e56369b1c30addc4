#include "app/LoadCommand.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>

#include <fmt/core.h>

#include "app/InterruptOnSignal.h"
#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/Table.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

/// The library that is built with this program lies beside it, wherever both are moved.
std::string defaultAddOnPath() {
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path().parent_path() / "lib" / "plot3dloader.so").string();
}

/// As a path of a file: a name without a directory would be searched among the system's libraries.
std::string addOnPath(const LoadArguments_s& arguments) {
    return arguments.addOnPath.empty() ? defaultAddOnPath()
                                       : std::filesystem::absolute(arguments.addOnPath).string();
}

/// The host lives as long as the program; what one run set up there must not outlive the run.
class CleanHost {
public:
    CleanHost() { host().reset(); }
    ~CleanHost() { host().reset(); }
    CleanHost(const CleanHost&) = delete;
    CleanHost& operator=(const CleanHost&) = delete;

    static ReferenceHost& host() { return ReferenceHost::instance(); }
};

void setUpHost(ReferenceHost& host, const LoadArguments_s& arguments, const Console_s& console,
               ProgressLine& progress) {
    host.setAnswers({}, arguments.answerYes);
    HostSettings& settings = host.settings();
    settings.memoryLimitBytes = arguments.memoryLimitBytes;
    settings.progressObserver = [&progress](const ProgressState& state) {
        if (state.open)
            progress.show(state.fraction, state.text);
        else
            progress.clear();
    };
    settings.messageObserver = [&progress, &console](const Message& message) {
        progress.clear();
        tellMessage(console.err, describeMessage(message));
    };
}

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
        AddOnLibrary::open(addOnPath(arguments), result.hostError);
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

bool writeJson(const Outcome_s& outcome, const std::string& file, const Console_s& console) {
    errno = 0;
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out << toJson(outcome);
    out.close();
    if (out)
        return true;
    tellError(console.err, fmt::format("{}: the JSON can't be written: {}", file,
                                       errno != 0 ? std::strerror(errno) : "unknown failure"));
    return false;
}

/// False if it could not be written.
bool printResults(const LoadArguments_s& arguments, const Outcome_s& outcome,
                  const Console_s& console) {
    if (arguments.jsonToOutput())
        console.out << toJson(outcome);
    else if (!arguments.jsonFile.empty() && !writeJson(outcome, arguments.jsonFile, console))
        return false;
    if (arguments.printInstructions) {
        for (const std::string& instruction : outcome.instructions)
            console.out << instruction << '\n';
    } else if (outcome.dataSet && !arguments.jsonToOutput()) {
        printTable(outcome, console.out);
    }
    console.out.flush();
    if (!console.out)
        tellError(console.err, "standard output can't be written");
    return static_cast<bool>(console.out);
}

} // namespace

ExitCode_e runLoad(const LoadArguments_s& arguments, const Console_s& console) {
    const CleanHost clean;
    ProgressLine progress(console);
    setUpHost(CleanHost::host(), arguments, console, progress);
    const Run_s run = carryOut(CleanHost::host(), arguments, progress);
    progress.clear();
    tellProblems(run, console.err);
    const bool written = printResults(arguments, run.outcome, console);
    return run.outcome.ok && run.fetchedAll && written ? ExitCode_e::Done : ExitCode_e::Failed;
}

} // namespace quorvia::host
