// The commands of the program.
#pragma once

#include <memory>
#include <vector>

#include "manners/Command.h"

namespace plot3d::program {

using Commands = std::vector<std::unique_ptr<Command>>;

/// All of them, in the order of the help text; `info` first, which is meant where none is named.
Commands allCommands();

} // namespace plot3d::program
