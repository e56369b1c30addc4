// The one entry of libplot3dscene: pictures of what was prepared. Whoever loads the library by name
// (program/render) knows no more of VTK than this.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "content/SceneContent.h"

namespace plot3d::scene {

/// Colours of a picture, rows from the top, three bytes a pixel.
struct Pixels_s {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;

    std::array<std::uint8_t, 3> at(int column, int row) const;
};

class Painter {
public:
    virtual ~Painter() = default;
    /// Why no window can be made on the display that DISPLAY names; empty if one can. Without this
    /// question a missing display ends the process.
    virtual std::string displayProblem() = 0;
    /// Makes what can be made ahead of the first picture, of that size, while others still read.
    virtual void warmUp(int width, int height) = 0;
    /// In the size of the content's view. One window serves all pictures of a painter. Throws Error
    /// (Refused) if there is none to be had.
    virtual Pixels_s paint(const std::shared_ptr<const SceneContent_s>& content) = 0;
    /// As the bytes of a PNG file.
    virtual std::vector<std::uint8_t> png(const Pixels_s& pixels) const = 0;
};

} // namespace plot3d::scene

/// A new painter, for the caller to delete; null if `version` is not that of this library: both
/// come from one build.
extern "C" plot3d::scene::Painter* plot3dScenePainter(const char* version);
