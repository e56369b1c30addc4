// The man page plot3d(1) of all commands.
#pragma once

#include <string>
#include <vector>

#include "app/Pages.h"

namespace plot3d::program {

/// In the man macros of roff. The program's page is the first of `pages`.
std::string manPage(const std::vector<CommandPage_s>& pages);

} // namespace plot3d::program
