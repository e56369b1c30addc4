// A list of files on standard input, one name to a line: what `-` stands for.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace plot3d::program {

/// `names` with each "-" replaced by the lines of `in`; empty lines are passed over, and blanks
/// belong to the name. `in` is read once, at the first "-"; a second one adds nothing.
std::vector<std::string> withListedFiles(const std::vector<std::string>& names, std::istream& in);

} // namespace plot3d::program
