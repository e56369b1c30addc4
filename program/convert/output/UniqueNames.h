// Names of variables where a format wants each only once, and none empty.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace plot3d::program {

/// Each name as it is; an empty one becomes "variable 5" (its number from 1), one that was there
/// before gets "_2", "_3" and so on behind it. `longest` bytes at most, 0 for any length.
std::vector<std::string> uniqueNames(const std::vector<std::string>& names,
                                     std::size_t longest = 0);

} // namespace plot3d::program
