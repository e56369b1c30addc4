#include "faults/SessionPlay.h"

#include <memory>
#include <new>
#include <set>
#include <stdexcept>

#include <fmt/core.h>

#include "describe/GatherOutcome.h"
#include "describe/Json.h"
#include "describe/Statistics.h"
#include "describe/ValueFetch.h"
#include "faults/Survival.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::testsupport {

namespace {

host::ReferenceHost& playingHost() {
    return host::ReferenceHost::instance();
}

/// Fetches every value and drops it again.
Standing_s takeStanding() {
    host::Outcome_s outcome = host::describeOutcome(playingHost(), {});
    if (outcome.dataSet)
        host::fetchValues(playingHost(), *outcome.dataSet);
    playingHost().unloadAll();
    return {.dataSet = std::move(outcome.dataSet),
            .plotType = outcome.plotType,
            .instructions = std::move(outcome.instructions)};
}

void beginAnew(const Session_s& session) {
    playingHost().reset();
    playingHost().settings().sharingAllowed = session.sharingAllowed;
    playingHost().settings().plainArrays = session.plainArrays;
}

std::string brokenContract() {
    playingHost().checkForLeaks();
    for (const std::string& violation : playingHost().log().violations)
        return "violation: " + violation;
    if (playingHost().lockDepth() != 0)
        return "the lock is held";
    if (openFiles() != 0)
        return "a file is still open";
    return {};
}

std::string allMessages() {
    std::set<std::string> texts; // one that comes for each field is told once
    for (const host::Message_s& message : playingHost().log().messages)
        texts.insert(message.text);
    std::string all;
    for (const std::string& text : texts)
        all += "\n    message: " + text;
    if (!playingHost().script().problem().empty())
        all += "\n    " + playingHost().script().problem();
    return all;
}

/// Memory that runs out ahead of the first change to the data set ends a load in silence, as a few
/// operations are made so: of the instructions, of the pairing into time steps, of the lists for
/// zones and variables. What the host itself refuses, it knows.
bool mayBeSilent(Fault_e fault, const std::string& lastText) {
    return isHostsOwn(fault) ||
           (isOfMemory(fault) &&
            (lastText.empty() || lastText.starts_with("Examining file header") ||
             lastText == "Checking dataset compatibility"));
}

/// How a step under a fault ended.
struct Ending_s {
    bool ok = false;
    bool told = false; // more than in the reference
    std::string hostError;
    std::string lastText; // that the progress bar showed; empty if there was none
};

class FaultyPlay {
public:
    FaultyPlay(const Session_s& session, const Reference& reference, Fault_e fault,
               const char** progress)
        : session_(session), reference_(reference), fault_(fault), progress_(*progress) {}

    std::string play(std::int64_t n);

private:
    bool openLibrary();
    void playSteps();
    Ending_s run(const Step_s& step, const Standing_s& expected);
    /// Whether the session may go on.
    bool judge(std::size_t step, const Ending_s& ending);
    void fetchAll(const Standing_s& expected);
    void fetchOne(const host::ZoneOutcome_s& zone, const host::FieldOutcome_s& field);
    void closeSession();
    void complain(const std::string& what) {
        if (problem_.empty())
            problem_ = std::string(progress_) + ": " + what;
    }

    const Session_s& session_;
    const Reference& reference_;
    Fault_e fault_;
    const char*& progress_;
    std::unique_ptr<host::AddOnLibrary> library_;
    std::string problem_;
};

std::string FaultyPlay::play(std::int64_t n) {
    {
        const FaultPause pause;
        beginAnew(session_);
        armFault(fault_, n);
    }
    if (openLibrary())
        playSteps();
    closeSession();
    disarmFault();
    return problem_;
}

bool FaultyPlay::openLibrary() {
    progress_ = "opening of the library";
    std::string error;
    try {
        library_ = host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    } catch (const std::bad_alloc&) {
        return false; // told to the program that opens it
    }
    const FaultPause pause;
    const bool isRegistered = library_ != nullptr && playingHost().loaders().size() == 1;
    if (!isRegistered && error.empty() && messagesSent() == 0 && !isHostsOwn(fault_))
        complain("no loader was registered, and nobody was told");
    return isRegistered;
}

void FaultyPlay::playSteps() {
    for (std::size_t step = 0; step < session_.steps.size(); ++step) {
        progress_ = session_.steps[step].name.c_str();
        const Ending_s ending = run(session_.steps[step], reference_[step]);
        const FaultPause pause;
        if (!judge(step, ending))
            return;
    }
    fetchAll(reference_.back());
}

Ending_s FaultyPlay::run(const Step_s& step, const Standing_s& expected) {
    const std::int64_t messagesBefore = messagesShown();
    const std::size_t textsBefore = playingHost().log().progress.count();
    Ending_s ending;
    try {
        const host::LoadResult_s result = step.run();
        const FaultPause pause;
        ending.ok = result.ok;
        ending.hostError = result.hostError;
    } catch (const std::bad_alloc&) {
        const FaultPause pause;
        ending.hostError = "the program's own memory ran out";
    }
    const FaultPause pause;
    ending.told = !ending.hostError.empty() || messagesShown() - messagesBefore > expected.messages;
    if (playingHost().log().progress.count() > textsBefore)
        ending.lastText = playingHost().log().progress.texts().back();
    return ending;
}

bool FaultyPlay::judge(std::size_t step, const Ending_s& ending) {
    const Standing_s now = takeStanding();
    const Standing_s& expected = reference_[step];
    const Standing_s before = step == 0 ? Standing_s() : reference_[step - 1];
    if (ending.ok && now == expected)
        return true;
    if (ending.ok) {
        const bool isAllowed = (ending.told && isWithoutSideFile(session_, now, expected)) ||
                               (isHostsOwn(fault_) && isWithoutWhatHostRefused(now, expected));
        if (!isAllowed)
            complain("ok, but other: " + difference(expected, now) + allMessages());
        return false;
    }
    if (!ending.told && !mayBeSilent(fault_, ending.lastText))
        complain("refused without a message, behind \"" + ending.lastText + "\"");
    if (isHostsOwn(fault_) && !now.dataSet)
        return false; // a host that can't say what there is has its frame reset
    const std::string lost = lostByRefusal(session_.steps[step].survival, before, expected, now);
    if (!lost.empty())
        complain("refused, and " + lost + allMessages() + "\n    " + ending.hostError);
    return false;
}

/// The fields of the reference, one by one, as a user looks at them.
void FaultyPlay::fetchAll(const Standing_s& expected) {
    progress_ = "fetch";
    for (const host::ZoneOutcome_s& zone : expected.dataSet->zones)
        for (const host::FieldOutcome_s& field : zone.fields)
            fetchOne(zone, field);
    progress_ = "unloading of values";
    playingHost().unloadAll();
    const FaultPause pause;
    progress_ = "second fetch";
    if (const Standing_s again = takeStanding(); !(again == expected))
        complain("other: " + difference(expected, again));
}

void FaultyPlay::fetchOne(const host::ZoneOutcome_s& zone, const host::FieldOutcome_s& field) {
    host::FetchResult_s fetched;
    try {
        fetched = playingHost().fetch(zone.number, field.variable);
    } catch (const std::bad_alloc&) {
        return; // told to the program that asked
    }
    const FaultPause pause;
    const bool hasValues = field.statistics.has_value();
    if (!fetched.ok && fetched.error.empty())
        complain("a field was not fetched, and the host does not say why");
    if (!fetched.ok)
        return;
    const auto type = static_cast<QuorFieldDataType_e>(fetched.type);
    if (!hasValues ||
        host::describeValues(type, fetched.values, fetched.count) != *field.statistics)
        complain(fmt::format("zone {}, variable {} has other values", zone.number, field.variable));
}

void FaultyPlay::closeSession() {
    progress_ = "reset of the frame";
    playingHost().frame().reset();
    progress_ = "unloading of the library";
    library_.reset();
    const FaultPause pause;
    progress_ = "end";
    if (const std::string broken = brokenContract(); !broken.empty())
        complain(broken + allMessages());
}

} // namespace

Reference playWithoutFaults(const Session_s& session) {
    const FaultPause pause;
    beginAnew(session);
    std::string error;
    Reference reference;
    const std::unique_ptr<host::AddOnLibrary> library =
        host::AddOnLibrary::open(PLOT3D_ADDON_PATH, error);
    if (library == nullptr)
        throw std::runtime_error(error);
    for (const Step_s& step : session.steps) {
        const std::int64_t messagesBefore = messagesShown();
        const host::LoadResult_s result = step.run();
        if (!result.ok)
            throw std::runtime_error(session.name + ", " + step.name + ": " + result.hostError +
                                     allMessages());
        Standing_s standing = takeStanding();
        standing.messages = messagesShown() - messagesBefore;
        reference.push_back(std::move(standing));
    }
    playingHost().frame().reset();
    library->unload();
    if (const std::string broken = brokenContract(); !broken.empty())
        throw std::runtime_error(session.name + ": " + broken);
    return reference;
}

std::string playUnderFault(const Session_s& session, const Reference& reference, Fault_e fault,
                           std::int64_t n, const char** progress) {
    const std::string problem = FaultyPlay(session, reference, fault, progress).play(n);
    if (!problem.empty())
        return problem;
    *progress = "play without faults behind it";
    const Reference again = playWithoutFaults(session);
    for (std::size_t step = 0; step < reference.size(); ++step)
        if (!(again[step] == reference[step]))
            return "a play without faults behind it: " + difference(reference[step], again[step]);
    return {};
}

} // namespace quorvia::testsupport
