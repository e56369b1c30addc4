// Solution times as a user names them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace plot3d::program {

/// Indices from 0 of those of `times` that "0.5", "0.5:2", "first" or "last" select; an end of a
/// range that is left out is the first or the last. Times that agree to six digits are the same,
/// since files hold them in 32 bits. `times` ascend. Throws plot3d::Error (Usage) for what is none
/// of these, and if no time is selected, with the times that there are.
std::vector<std::size_t> parseTimes(std::string_view text, const std::vector<double>& times);

} // namespace plot3d::program
