// Names of variables by patterns.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace plot3d::program {

/// Whether the whole name meets the pattern: `*` stands for any characters, `?` for one. Case does
/// not count, nor do blanks at the end of the name.
bool meets(std::string_view name, std::string_view pattern);

/// Indices from 0, ascending, of the names that meet one of the patterns, which commas separate; a
/// pattern that is a name as it stands, case counting, means that one alone. Throws plot3d::Error
/// (Usage) for a pattern that no name meets, with the names that there are.
std::vector<std::size_t> namesThatMeet(const std::vector<std::string>& names,
                                       std::string_view patterns);

} // namespace plot3d::program
