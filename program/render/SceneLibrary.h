// libplot3dscene, which draws: loaded when a picture is asked for.
#pragma once

#include <memory>

#include "picture/Painter.h"

namespace plot3d::program {

/// Looks for the library beside libplot3d, and in the folder plot3d there; it stays loaded. Throws
/// plot3d::Error (Unsupported) if it is not there, with what to install, or can't be loaded.
std::unique_ptr<scene::Painter> loadedPainter();

} // namespace plot3d::program
