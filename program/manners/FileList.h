// Names of files from the command line, where `-` stands for a list on standard input.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace plot3d::program {

/// `names` with each `-` replaced by the lines of `in`, empty ones left out; what is read once is
/// not there a second time. Names keep their order.
std::vector<std::string> filesNamed(const std::vector<std::string>& names, std::istream& in);

} // namespace plot3d::program
