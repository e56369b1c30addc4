// Whether a window can be made.
#pragma once

#include <string>

namespace plot3d::scene {

/// Why not, on the display that DISPLAY names; empty if one can.
std::string displayProblem();

} // namespace plot3d::scene
