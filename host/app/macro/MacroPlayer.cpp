#include "app/macro/MacroPlayer.h"

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <utility>

#include <fmt/core.h>

#include "app/macro/CommandText.h"
#include "app/macro/DialogSteps.h"
#include "app/macro/OutcomeSlices.h"
#include "describe/GatherOutcome.h"
#include "describe/ValueFetch.h"
#include "describe/Words.h"
#include "session/AddOnLibrary.h"
#include "session/ReferenceHost.h"

namespace quorvia::host {
namespace {

/// Why a command can't be carried out.
class CommandProblem : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// The add-on can't be opened; the last load's result holds the reason.
class NoAddOn : public std::runtime_error {
public:
    NoAddOn() : std::runtime_error("no add-on") {}
};

/// What is to go wrong in the next load, and in no other.
class PlannedFaults {
public:
    void add(const InterruptCommand_s& command) { interruptAtStep_ = command.step; }
    void add(const FailCommand_s& command) { failures_.push_back(command); }

    /// Runs `load` under the faults and forgets them.
    template <typename Load>
    LoadResult_s during(ReferenceHost& host, Load load) {
        if (interruptAtStep_ != 0)
            host.interruptAtStep(interruptAtStep_);
        for (const FailCommand_s& failure : failures_)
            host.failCall(failure.operation, failure.call);
        LoadResult_s result = load();
        host.clearFaults();
        *this = {};
        return result;
    }

private:
    std::int64_t interruptAtStep_ = 0; // 0: never
    std::vector<FailCommand_s> failures_;
};

bool mayGoOn(const PlaySettings_s& settings) {
    return !settings.mayGoOn || settings.mayGoOn();
}

/// The step as long as the macro goes on; afterwards the dialog is cancelled.
ScriptEntry whileItMayGoOn(const PlaySettings_s& settings, ScriptEntry entry) {
    const auto* step = std::get_if<DialogStep>(&entry);
    if (step == nullptr)
        return entry;
    return DialogStep([&settings, step = *step](const Dialog_s& dialog) {
        if (mayGoOn(settings))
            return step(dialog);
        return DialogMove_s{PressDialogButton_s{DialogButton_e::Cancel}, "", false};
    });
}

class Player {
public:
    Player(const PlaySettings_s& settings, ReferenceHost& host) : settings_(settings), host_(host) {
        host_.setAnswers({}, settings_.answerYes);
        lastLoad_.ok = true; // of a session without a load, nothing has failed
    }

    /// Each gives how the command ended, for people.
    std::string operator()(const SelectCommand_s& command) {
        return load(
            [&] { return host_.importSelection(command.files, command.advanced, command.append); });
    }
    std::string operator()(const InstructionsCommand_s& command) {
        return load([&] { return host_.importInstructions(command.instructions); });
    }
    std::string operator()(const ReplayCommand_s&) {
        const std::vector<std::string> instructions = host_.log().instructions;
        if (instructions.empty())
            throw CommandProblem("no load has left instructions to replay");
        return load([&] { return host_.importInstructions(instructions); });
    }

    std::string operator()(const AnswersCommand_s& command) {
        host_.setAnswers(command.answers, settings_.answerYes);
        return "done";
    }
    std::string operator()(const DialogCommand_s& command) {
        std::vector<ScriptEntry> steps =
            dialogSteps(command, [this](const std::string& name) { describeAs(name); });
        for (ScriptEntry& step : steps)
            step = whileItMayGoOn(settings_, std::move(step));
        host_.script().addToScript(std::move(steps));
        return "done";
    }
    std::string operator()(const HostCommand_s& command);
    std::string operator()(const DataSetCommand_s& command) {
        if (!putIntoFrame(command.dataSet, host_.frame()))
            throw CommandProblem("there is no memory for the values of the data set");
        return "done";
    }
    std::string operator()(const InterruptCommand_s& command) {
        faults_.add(command);
        return "done";
    }
    std::string operator()(const FailCommand_s& command) {
        faults_.add(command);
        return "done";
    }
    std::string operator()(const StateChangeCommand_s& command) {
        host_.sendStateChange(command.code);
        return "done";
    }

    std::string operator()(const FetchCommand_s& command) {
        return command.zone == 0 ? fetchAll() : fetchOne(command);
    }
    std::string operator()(const UnloadCommand_s&) {
        host_.unloadAll();
        return "done";
    }
    std::string operator()(const DeleteZonesCommand_s& command);
    std::string operator()(const ResetFrameCommand_s&) {
        host_.frame().reset();
        return "done";
    }

    std::string operator()(const DescribeCommand_s& command) {
        return sizeText(describeAs(command.name).dataSet);
    }

    /// Once, before the first command that needs it.
    void loadAddOn() {
        if (library_ != nullptr)
            return;
        LoadResult_s result = lastLoad_;
        library_ = AddOnLibrary::open(settings_.addOnPath, result.hostError);
        if (library_ != nullptr)
            return;
        result.ok = false;
        lastLoad_ = result;
        throw NoAddOn();
    }

    bool lastLoadLeftOut() const { return lastLoadLeftOut_; }

    /// Ends the session.
    SessionOutcome_s finish() {
        Outcome_s outcome = describe();
        if (library_ != nullptr)
            library_->unload(); // tells what the add-on still holds
        updateLog(host_, outcome);
        slices_.cut(outcome);
        return {std::move(descriptions_), std::move(outcome)};
    }

private:
    template <typename Import>
    std::string load(Import import) {
        const std::int64_t launchesBefore = host_.toolkit().launches();
        const std::size_t messagesBefore = host_.log().messages.size();
        lastLoad_ = faults_.during(host_, import);
        lastLoadLeftOut_ = lastLoad_.ok && toldAnErrorSince(messagesBefore);
        if (host_.toolkit().launches() == launchesBefore)
            return endingOfLoad();
        return endingOfLoad() + endDialogScript();
    }

    bool toldAnErrorSince(std::size_t first) const {
        const std::vector<Message_s>& messages = host_.log().messages;
        return std::any_of(
            messages.begin() + static_cast<std::ptrdiff_t>(first), messages.end(),
            [](const Message_s& message) { return message.kind == MessageKind_e::Error; });
    }

    std::string endingOfLoad() const {
        if (lastLoad_.ok)
            return "loaded";
        if (!lastLoad_.hostError.empty())
            return "failed: " + lastLoad_.hostError;
        return lastLoad_.interrupted ? "interrupted" : "failed";
    }

    /// Behind an import that has shown a dialog: what became of the actions for it.
    std::string endDialogScript() {
        ScriptedUser& script = host_.script();
        script.takeLooksLeft();
        const std::string problem = script.problem();
        std::string account;
        if (script.cancelledDialogs() > 0)
            account += ", the dialog was still open and was cancelled";
        if (script.entriesLeft() > 0)
            account += fmt::format(
                ", {} left", counted(script.entriesLeft(), "dialog action", "dialog actions"));
        script.clearScript();
        if (!problem.empty())
            throw CommandProblem(problem);
        return account;
    }

    const Outcome_s& describeAs(const std::string& name) {
        Outcome_s outcome = describe();
        slices_.cut(outcome);
        return descriptions_.emplace_back(name, std::move(outcome)).second;
    }

    Outcome_s describe() {
        Outcome_s outcome = describeOutcome(host_, lastLoad_);
        if (outcome.dataSet)
            fetchValues(host_, *outcome.dataSet, settings_.fetchObserver);
        updateLog(host_, outcome);
        return outcome;
    }

    std::string fetchOne(const FetchCommand_s& command);
    std::string fetchAll();

    const PlaySettings_s& settings_;
    ReferenceHost& host_;
    std::unique_ptr<AddOnLibrary> library_;
    LoadResult_s lastLoad_;
    bool lastLoadLeftOut_ = false;
    PlannedFaults faults_;
    OutcomeSlices slices_;
    std::vector<std::pair<std::string, Outcome_s>> descriptions_;
};

std::string Player::operator()(const HostCommand_s& command) {
    HostSettings_s& settings = host_.settings();
    settings.sharingAllowed = command.sharingAllowed.value_or(settings.sharingAllowed);
    settings.version = command.version.value_or(settings.version);
    settings.refuseInstructions = command.refuseInstructions.value_or(settings.refuseInstructions);
    settings.memoryLimitBytes = command.memoryLimitBytes.value_or(settings.memoryLimitBytes);
    if (command.timesFromFileNames)
        settings.timesFromFileNames = *command.timesFromFileNames;
    if (command.plotType)
        host_.frame().setPlotType(*command.plotType);
    return "done";
}

std::string Player::fetchOne(const FetchCommand_s& command) {
    const DataSet* dataSet = host_.frame().dataSet();
    if (dataSet == nullptr || dataSet->field(command.zone, command.variable) == nullptr)
        throw CommandProblem(
            fmt::format("there is no variable {} of a zone {}", command.variable, command.zone));
    const FetchResult_s result = host_.fetch(command.zone, command.variable);
    return result.ok ? fmt::format("{} values", result.count) : "failed: " + result.error;
}

std::string Player::fetchAll() {
    const DataSet* dataSet = host_.frame().dataSet();
    if (dataSet == nullptr)
        throw CommandProblem("there is no data set to fetch values of");
    std::int64_t fetched = 0;
    std::int64_t total = 0;
    for (const auto& zone : dataSet->zones()) {
        for (std::int32_t variable = 1; variable <= dataSet->variableCount(); ++variable) {
            if (dataSet->field(zone->number, variable)->storage == nullptr)
                continue;
            ++total;
            fetched += host_.fetch(zone->number, variable).ok ? 1 : 0;
        }
    }
    return fmt::format("{} of {} fields", fetched, total);
}

std::string Player::operator()(const DeleteZonesCommand_s& command) {
    DataSet* dataSet = host_.frame().dataSet();
    const std::int64_t last = *command.zones.rbegin();
    if (dataSet == nullptr || last > dataSet->zoneCount())
        throw CommandProblem(fmt::format("there is no zone {}", last));
    dataSet->deleteZones(command.zones);
    return "done";
}

/// Whether all of them were carried out.
bool playCommands(const Macro_s& macro, const PlaySettings_s& settings, Player& player,
                  PlayedMacro_s& played) {
    for (const MacroCommand& command : macro.commands) {
        if (!mayGoOn(settings))
            return false;
        try {
            if (needsAddOn(command))
                player.loadAddOn();
            played.account.push_back({commandText(command), std::visit(player, command)});
        } catch (const NoAddOn&) {
            return false;
        } catch (const CommandProblem& problem) {
            played.problem =
                fmt::format("command {}: {}", played.account.size() + 1, problem.what());
            return false;
        }
    }
    return mayGoOn(settings);
}

} // namespace

PlayedMacro_s playMacro(const Macro_s& macro, const PlaySettings_s& settings, ReferenceHost& host) {
    PlayedMacro_s played;
    Player player(settings, host);
    played.complete = playCommands(macro, settings, player, played);
    played.session = player.finish();
    played.lastLoadLeftOut = player.lastLoadLeftOut();
    return played;
}

} // namespace quorvia::host
