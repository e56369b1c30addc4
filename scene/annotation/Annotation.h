// Title, legend and axes of a picture, as flat marks.
#pragma once

#include "annotation/Drawing.h"
#include "annotation/Layout.h"
#include "annotation/Projection.h"
#include "content/SceneContent.h"

namespace plot3d::scene {

/// All that the view wants of them. Of a plot of lines this is the whole picture.
Drawing_s annotationOf(const SceneContent_s& content, const Layout_s& layout,
                       const Projection_s& projection);

/// The colour of the curve of that index.
Rgb curveColour(std::size_t index);

} // namespace plot3d::scene
