// Solution times as a user names them.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace plot3d::program {

struct TimeTolerance_s {
    double relative = 0.0; // of the larger of two
    double absolute = 0.0;
};
/// Six digits: files hold times in 32 bits.
constexpr TimeTolerance_s timeTolerance = {1e-6, 0.0};

/// Whether two times agree to one of the tolerances. What is infinite or no number agrees with its
/// like alone.
bool isSameTime(double one, double other, const TimeTolerance_s& tolerance);

/// Indices from 0 of those of `times` that "0.5", "0.5:2", "first" or "last" select; an end of a
/// range that is left out is the first or the last. A time that is not finite is selected as it is
/// shown: "inf". Times that agree to timeTolerance are the same. `times` ascend, as those of a data
/// set. Throws plot3d::Error (Usage) for what is none of these, and if no time is selected, with
/// the times that there are.
std::vector<std::size_t> parseTimes(std::string_view text, const std::vector<double>& times);

} // namespace plot3d::program
