// One load in the host, and what came of it.
#pragma once

#include <string>
#include <vector>

#include <plot3d/Watch.h>

#include "open/Content.h"

namespace plot3dlib {

/// Runs the load by the linked-in add-on, in a frame of its own, which is closed again, and takes
/// the data set out. Questions of the add-on are answered with yes. Throws plot3d::Error, and lets
/// through what the progress callback throws. The host lock must be held.
Content_s loadAtHost(const std::vector<std::string>& instructions, const plot3d::Watch& watch);
/// The same by the add-on at `path`. The data set keeps the frame, and leaves its fields there.
Content_s loadByAddOn(const std::string& path, const std::vector<std::string>& instructions,
                      const plot3d::Watch& watch);

} // namespace plot3dlib
