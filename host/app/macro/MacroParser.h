// The text of a macro becomes its commands. Everything that can be known to be wrong before the
// macro runs is found here: docs/macros.md tells what a macro may hold.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/macro/Macro.h"

namespace quorvia::host {

/// `text` is the JSON of a whole macro, in UTF-8. Nothing for a bad macro, and `error` then says in
/// one line what is wrong with the first bad command, and its number, from 1.
std::optional<Macro_s> parseMacro(std::string_view text, std::string& error);

} // namespace quorvia::host
