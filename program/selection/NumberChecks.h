// Why numbers on the command line can't be taken, for the parser: empty if they can.
#pragma once

#include <cstdint>
#include <string>

namespace plot3d::program {

std::string wholeNumberBetween(const std::string& text, std::int64_t least, std::int64_t most);
/// A finite real of 0 or more.
std::string notNegative(const std::string& text);
/// Of threads to work on.
std::string threadCount(const std::string& text);

} // namespace plot3d::program
