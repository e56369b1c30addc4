// Arguments as a user would type them.
#pragma once

#include <string>
#include <vector>

namespace plot3d::program {

/// The words on one line, those in quotes that a shell would take apart.
std::string shellLine(const std::vector<std::string>& words);

} // namespace plot3d::program
