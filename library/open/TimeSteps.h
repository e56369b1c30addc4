// Which zones are seen together at one time.
#pragma once

#include <vector>

#include <plot3d/Zone.h>

namespace plot3dlib {

/// A step for each time that zones with a strand have, ascending; zones without a strand are in
/// all. If no zone has one, a single step, at the first zone's time. None without zones.
std::vector<plot3d::TimeStep> timeStepsOf(const std::vector<plot3d::Zone>& zones);

} // namespace plot3dlib
