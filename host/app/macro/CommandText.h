// The commands of a macro in few words, for the account that people read.
#pragma once

#include <string>

#include "app/macro/Macro.h"

namespace quorvia::host {

/// The command's name and what matters most of it. Texts stand as they came.
std::string commandText(const MacroCommand& command);

} // namespace quorvia::host
