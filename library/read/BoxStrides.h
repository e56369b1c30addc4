// The points of a box as places in the row of all values of a field: runs of neighbours, and how
// far apart they are. Neighbouring rows and planes become one run, so that whoever reads or copies
// has the longest runs there are. All numbers count values, not bytes.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include <plot3d/Box.h>

namespace plot3dlib {

/// Throws Error (Usage) unless each step is at least 1 and all points lie in a field of `size`. A
/// box without points lies in every field.
void requireInside(const plot3d::Box& box, const plot3d::Extent& size);

struct BoxStrides_s {
    struct Direction_s {
        std::int64_t count = 1;
        std::int64_t stride = 0; // from one first value to the next
    };

    std::int64_t first = 0;                // place of the first value, from 0
    std::int64_t run = 1;                  // values that stand back to back
    std::array<Direction_s, 3> directions; // how runs repeat, the innermost first
    std::size_t directionCount = 0;        // of these; 0: one run is all

    /// Values of all runs.
    std::int64_t count() const;
    /// Places from the first value to the last one, those between the runs included.
    std::int64_t span() const;
};

/// The box has points and lies in the field (requireInside).
BoxStrides_s stridesOf(const plot3d::Box& box, const plot3d::Extent& size);

/// Copies the values out of an array that holds the places from strides.first on, to a row of
/// values. `width`: bytes of a value, 4 or 8.
void gather(const std::byte* from, const BoxStrides_s& strides, std::int64_t width, std::byte* to);

} // namespace plot3dlib
