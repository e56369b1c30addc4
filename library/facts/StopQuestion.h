// Asked between the pieces of long work.
#pragma once

#include <stop_token>

#include <plot3d/Error.h>

namespace plot3dlib {

/// Throws Error (Interrupted) if the caller wants the work to stop.
inline void endIfStopped(const std::stop_token& stop) {
    if (stop.stop_requested())
        throw plot3d::Error(plot3d::ErrorKind::Interrupted, "stopped");
}

} // namespace plot3dlib
