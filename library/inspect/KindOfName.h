// What a file is by its name, by the rules of a selection in the loader's dialog.
#pragma once

#include <optional>
#include <string>

#include <plot3d/FileInfo.h>

namespace plot3dlib {

/// Empty where the name does not tell.
std::optional<plot3d::FileKind> kindOfName(const std::string& path);

} // namespace plot3dlib
