// Carries out the commands of a macro at the reference host, one after the other.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/macro/Macro.h"
#include "describe/FetchSeries.h"
#include "describe/Outcome.h"

namespace quorvia::host {

struct PlaySettings_s {
    std::string addOnPath;  // with a directory: a bare name is searched elsewhere
    bool answerYes = false; // questions behind the last of the macro's answers
    /// Asked before each command, and each action at a dialog; false ends the macro.
    std::function<bool()> mayGoOn = {};
    FetchObserver fetchObserver = {}; // of the fetching for descriptions
};

/// What a command was and how it ended, for people.
struct CommandAccount_s {
    std::string command;
    std::string ending;
};

struct PlayedMacro_s {
    SessionOutcome_s session;
    std::vector<CommandAccount_s> account; // of the commands that were carried out, in order
    /// Whether every command was carried out. A load that fails was, too.
    bool complete = false;
    /// The last load came in, but an error was shown, so that something was left out of it.
    bool lastLoadLeftOut = false;
    std::string problem; // why not, if the session's outcome doesn't tell it; in one line
};

/// Plays on the host as it is and leaves it with the data set of the macro; the add-on is unloaded.
/// A command that can't be carried out, and an add-on that can't be opened, end the macro.
PlayedMacro_s playMacro(const Macro_s& macro, const PlaySettings_s& settings, ReferenceHost& host);

} // namespace quorvia::host
