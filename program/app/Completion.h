// What completes the program's command line in a shell.
#pragma once

#include <string>
#include <vector>

#include "app/Pages.h"

namespace plot3d::program {

/// Scripts to be sourced, or put where the shell looks for them. The program's page is the first of
/// `pages`.
std::string bashCompletion(const std::vector<CommandPage_s>& pages);
std::string zshCompletion(const std::vector<CommandPage_s>& pages);

} // namespace plot3d::program
