// Ranges of indices and points as a user writes them, counted from 1, or from the end with a minus.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include <plot3d/Box.h>

namespace plot3d::program {

/// An index from 1, or from the end: -1 is the last one. Never 0.
struct IndexRange_s {
    std::int64_t first = 1;
    std::int64_t last = -1;
    std::int64_t step = 1;

    bool operator==(const IndexRange_s&) const = default;
};

/// "FIRST,LAST,STEP", of which each may be empty or left out: the first, the last, 1. One number
/// alone is that index alone. The last index is taken only if a step lands on it. Throws
/// plot3d::Error (Usage).
IndexRange_s parseIndexRange(std::string_view text);

/// "I,J,K", where what is left out is 1. Throws plot3d::Error (Usage).
std::array<std::int64_t, 3> parsePoint(std::string_view text);

/// The indices from 0 that the range has among `count`; a last one beyond the count is cut, and so
/// is a first one ahead of it that is counted from the end. Nothing if none is left;
/// one index alone has the step 1, so that all that there is is whole.
std::optional<Range> resolved(const IndexRange_s& range, std::int64_t count);

} // namespace plot3d::program
