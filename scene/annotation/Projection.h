// A parallel view onto the data: between coordinates and pixels.
#pragma once

#include <array>

#include "annotation/Drawing.h"
#include "content/SceneContent.h"
#include "view/View.h"

namespace plot3d::scene {

/// A part of a picture, in pixels from its lower left corner.
struct Area_s {
    double left = 0;
    double bottom = 0;
    double right = 1;
    double top = 1;

    double width() const { return right - left; }
    double height() const { return top - bottom; }
    Pixel middle() const { return {(left + right) / 2, (bottom + top) / 2}; }
};

struct Projection_s {
    Vector3 right = {1, 0, 0}; // of the picture; these three are of length 1
    Vector3 up = {0, 1, 0};
    Vector3 towards = {0, 0, 1}; // the eye
    Vector3 centre = {};         // what is seen at `at`
    Pixel at = {};
    double scale = 1; // pixels for one unit of the coordinates

    Pixel pixelOf(const Vector3& point) const;
    /// The point at a pixel that is as deep as `centre`.
    Vector3 pointAt(const Pixel& pixel) const;
};

/// In which all that the content shows fits into the area at zoom 1. Plane content is seen from
/// above whatever the camera's direction.
Projection_s fitted(const SceneContent_s& content, const Camera_s& camera, const Area_s& area);

} // namespace plot3d::scene
