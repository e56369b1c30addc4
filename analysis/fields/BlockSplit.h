// A box cut into smaller ones that follow one another, I fastest, so that a field of any size is
// worked on in bounded memory.
#pragma once

#include <cstdint>
#include <vector>

#include <plot3d/Box.h>

namespace plot3d::analysis {

/// What a core works on in one go: some milliseconds; also what is held of I-blank at a time on
/// each. Sums are put together stretch by stretch, so that the last digits of means hang on this.
constexpr std::int64_t pointsOfStretch = std::int64_t{1} << 20;

/// Of a zone, from 0.
struct Point_s {
    std::int64_t i = 0;
    std::int64_t j = 0;
    std::int64_t k = 0;

    bool operator==(const Point_s&) const = default;
};

/// Boxes of at most `points` points (1 at least): whole planes, or else rows of one plane, or else
/// a part of one row. Put behind one another they have the points of `box` in their order. None for
/// a box without points.
std::vector<Box> blocksOf(const Box& box, std::int64_t points);

/// The point at a place, from 0, in the order of the box.
Point_s pointAt(const Box& box, std::int64_t place);

} // namespace plot3d::analysis
