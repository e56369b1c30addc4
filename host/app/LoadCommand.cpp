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

bool wantsValues(const LoadArguments_s& arguments) {
    const bool onlyInstructions = arguments.printInstructions && arguments.jsonFile.empty();
    return arguments.fetchValues && !onlyInstructions;
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

void tellViolations(const std::vector<std::string>& violations, std::ostream& err) {
    for (const std::string& violation : violations)
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
    ReferenceHost& host = CleanHost::host();
    ProgressLine progress(console);
    const InterruptOnSignal interrupt;
    setUpHost(host, arguments, console, progress);

    LoadResult result;
    const std::string path = arguments.addOnPath.empty() ? defaultAddOnPath() : arguments.addOnPath;
    const std::unique_ptr<AddOnLibrary> library = AddOnLibrary::open(path, result.hostError);
    if (library)
        result = importData(host, arguments);
    Outcome_s outcome = describeOutcome(host, result);
    bool fetchedAll = true;
    if (outcome.dataSet && wantsValues(arguments))
        fetchedAll = fetchAllValues(host, outcome, progress, interrupt);
    progress.clear();
    if (library)
        library->unload(); // reports what the add-on still holds
    updateLog(host, outcome);

    if (!outcome.ok)
        tellWhyNot(outcome, result.interrupted, console.err);
    if (!fetchedAll)
        console.err << "quorhost: interrupted, not all values were fetched\n";
    tellViolations(outcome.violations, console.err);
    const bool written = printResults(arguments, outcome, console);
    return outcome.ok && fetchedAll && written ? ExitCode_e::Done : ExitCode_e::Failed;
}

} // namespace quorvia::host
