// What a window can say of a control beyond what the guest tells of it: the name of one that has no
// caption, and why one can't be used now.
#pragma once

#include <QString>

#include "toolkit/Dialog.h"

namespace quorvia::host {

/// The control's caption, or else that of the label that stands beside or above it, or else its
/// first item.
std::string nameOf(const Dialog_s& dialog, const Control_s& control);

/// The same for people who hear the dialog rather than see it: a control that has its name from a
/// label is told with the frame around it, since labels such as "Start:" come more than once.
std::string spokenNameOf(const Dialog_s& dialog, const Control_s& control);

/// Why the user can't use a control of this name while it is not sensitive.
QString hintFor(const std::string& name);

} // namespace quorvia::host
