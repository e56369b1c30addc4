// What people call a text field, which has no caption of its own: the label beside or above it, and
// the frame around it.
#pragma once

#include <string>

#include "toolkit/Dialog.h"

namespace quorvia::host {

/// The caption of the nearest label to the left in the same line, else of the one just above,
/// without its colon and what stands in brackets, such as "Start" or "Name File". Empty if there is
/// neither.
std::string labelOf(const Dialog& dialog, const Control& field);

/// The caption of the frame in which the control begins, such as "I-Index"; empty if there is none.
std::string frameOf(const Dialog& dialog, const Control& control);

/// Whether people mean the field by `name`: its label, or frame and label with a blank between.
bool isCalled(const Dialog& dialog, const Control& field, const std::string& name);

} // namespace quorvia::host
