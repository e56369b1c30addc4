// What kind of file one is that its name says nothing of.
#pragma once

#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

namespace plot3dlib {

/// The kinds among grid, solution and function that the file reads as, in this order. Each is tried
/// on the file alone. Throws plot3d::Error (Interrupted).
std::vector<plot3d::FileKind> kindsThatFit(const std::string& file, const plot3d::Watch& watch);

} // namespace plot3dlib
