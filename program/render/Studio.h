// Where pictures are drawn: the library that draws, and a display for it.
#pragma once

#include <memory>
#include <optional>
#include <stop_token>
#include <string>

#include "render/SceneLibrary.h"
#include "render/VirtualDisplay.h"

namespace plot3d::program {

class Studio {
public:
    /// Loads the library, and begins a virtual display if DISPLAY names none. On the main thread.
    /// Throws plot3d::Error (Unsupported).
    Studio();

    /// Waits for the display and makes the window; to be called while others read. Throws
    /// plot3d::Error: Unsupported if there is no display and none can be had, Interrupted.
    void open(int width, int height, const std::stop_token& stop);
    /// Behind open().
    scene::Painter& painter() { return *painter_; }

private:
    std::optional<VirtualDisplay> display_; // outlives the window on it
    std::unique_ptr<scene::Painter> painter_;
};

} // namespace plot3d::program
