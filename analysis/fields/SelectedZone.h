// Points of one zone.
#pragma once

#include <cstddef>

#include <plot3d/Box.h>

namespace plot3d::analysis {

struct SelectedZone_s {
    std::size_t zone = 0; // index from 0
    Box box;              // holds one point at least
};

} // namespace plot3d::analysis
