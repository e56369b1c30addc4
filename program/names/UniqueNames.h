// Names where a format wants each only once, and none empty.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace plot3d::program {

/// Each name as it is; an empty one becomes "unnamed 5" (its number from 1), one that was there
/// before gets "_2", "_3" and so on behind it. `longest` bytes at most, 0 for any length.
std::vector<std::string> uniqueNames(std::vector<std::string> names, std::size_t longest = 0);

/// The same for formats whose names are steps of a path: without slashes, blanks at the end, and
/// the names "." and "..".
std::vector<std::string> nodeNames(std::vector<std::string> names, std::size_t longest);

} // namespace plot3d::program
