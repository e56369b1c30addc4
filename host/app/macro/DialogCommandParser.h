// The value of a macro's "dialog" command becomes its actions. Throws MacroError for a bad one.
#pragma once

#include <string>

#include "app/macro/DialogCommand.h"
#include "app/macro/MacroJson.h"

namespace quorvia::host {

DialogCommand_s parseDialogCommand(const MacroJson& value, const std::string& what);

} // namespace quorvia::host
