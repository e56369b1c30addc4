// What people call a control that has no caption of its own: by the label beside or above it, and
// the frame around it.
#pragma once

#include <string>

#include "toolkit/Dialog.h"

namespace quorvia::host {

/// The nearest label in the same line to the left, or just above; null if there is none.
const Control_s* labelOf(const Dialog_s& dialog, const Control_s& control);

/// The frame in which the control begins; null if there is none.
const Control_s* frameAround(const Dialog_s& dialog, const Control_s& control);

/// Whether people mean the control by `name`: its label without the colon and what stands in
/// brackets, such as "Name File", or frame and label with a blank between, such as "I-Index Start".
bool isCalled(const Dialog_s& dialog, const Control_s& control, const std::string& name);

} // namespace quorvia::host
