// From the actions of a macro to the steps of a scripted user, who finds the controls by their
// captions once the dialog is there.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/macro/DialogCommand.h"
#include "toolkit/ScriptedUser.h"

namespace quorvia::host {

/// `describe` gets the name of each description when its time has come. A step that can't be done
/// tells its number, from 1, and why.
std::vector<ScriptEntry> dialogSteps(const DialogCommand_s& command,
                                     const std::function<void(const std::string&)>& describe);

} // namespace quorvia::host
