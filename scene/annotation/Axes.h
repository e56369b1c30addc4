// Axes as flat marks.
#pragma once

#include <array>
#include <string>

#include "annotation/Drawing.h"
#include "annotation/Layout.h"
#include "annotation/Projection.h"

namespace plot3d::scene {

/// Along three edges of the box around the data, those that nothing stands before, whichever way
/// it is turned.
void addSpaceAxes(const Bounds_s& bounds, const Layout_s& layout, const Projection_s& projection,
                  Drawing_s& drawing);

/// A frame with ticks along its lower and left sides.
struct Frame_s {
    Area_s area;
    Range_s across;
    Range_s along;
    std::array<std::string, 2> names;
};
void addFrame(const Frame_s& frame, const Layout_s& layout, Drawing_s& drawing);

} // namespace plot3d::scene
