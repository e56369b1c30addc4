// How contents are refused that a format can't hold.
#pragma once

#include <string>

namespace plot3d::program {

/// Throws Error (Unsupported). `next`: what to try instead, if there is something.
[[noreturn]] void refuseContents(const std::string& message, const std::string& next = {});

} // namespace plot3d::program
