// The user's work with an open dialog: the next action is done, the guest is told, until the dialog
// is dropped.
#pragma once

#include <string>

#include "toolkit/Toolkit.h"
#include "toolkit/User.h"

namespace quorvia::host {

/// Launches a dialog that is not open, and returns once it is dropped. A guest's callback may drop
/// the dialog and launch it again: the inner launch ends before the outer one. A dialog without a
/// cancel callback is dropped by Cancel. What a callback throws passes through, and leaves the
/// dialog closed. False: the host had no memory for what the user did, and Cancel was pressed
/// instead.
bool launch(Toolkit& toolkit, Dialog_s& dialog, User& user);

/// Hides an open dialog.
void drop(Dialog_s& dialog, User& user);

/// Why the user can't do this at the dialog now, in words; empty if nothing is against it.
std::string whyImpossible(const Dialog_s& dialog, const DialogAction& action);

} // namespace quorvia::host
