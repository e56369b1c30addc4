// Names that a format with short or plain names can hold.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace plot3d::program {

/// Each name without slashes and blanks at its end, of at most `longest` bytes; an empty one is
/// called by its number from 1, one that was there before gets "_2" behind it.
std::vector<std::string> nodeNames(const std::vector<std::string>& names, std::size_t longest);

} // namespace plot3d::program
