// Where the curves of a plot of lines are in a picture: between values and pixels.
#pragma once

#include <cstddef>
#include <optional>

#include "annotation/Axes.h"
#include "annotation/Drawing.h"
#include "annotation/Layout.h"
#include "content/SceneContent.h"

namespace plot3d::scene {

/// A point of a curve, both from 0.
struct CurvePoint_s {
    std::size_t curve = 0;
    std::size_t point = 0;
};

class LinePlot {
public:
    /// The content has curves; it is borrowed.
    LinePlot(const SceneContent_s& content, const Layout_s& layout);

    const Frame_s& frame() const { return frame_; }
    /// Nothing if a value is not finite, or lies beyond the frame.
    std::optional<Pixel> pixelOf(double abscissa, double ordinate) const;
    /// The point that is nearest to a pixel; nothing if none is within `reach` pixels.
    std::optional<CurvePoint_s> nearest(const Pixel& pixel, double reach) const;

private:
    const SceneContent_s& content_;
    Frame_s frame_;
};

/// Of a point of the curve, its place in the zone, from 0.
Place_s placeOf(const Curve_s& curve, std::size_t point);

} // namespace plot3d::scene
