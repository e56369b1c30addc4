// Help texts: one for the program, one for each command.
#pragma once

#include <string>
#include <vector>

#include "app/Pages.h"

namespace plot3d::program {

/// Of one command. `columns`: width of the terminal, 0 for none; no text gets wider than 80.
std::string helpText(const CommandPage_s& page, int columns);

/// Of the program, which is the first of `pages`.
std::string helpText(const std::vector<CommandPage_s>& pages, int columns);

} // namespace plot3d::program
