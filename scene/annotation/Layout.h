// Where the parts of a picture are: the data, the legend, the title; and which inks they have.
#pragma once

#include "annotation/Drawing.h"
#include "annotation/Projection.h"
#include "content/SceneContent.h"

namespace plot3d::scene {

struct Inks_s {
    Rgb paper = {255, 255, 255};
    Rgb strong = {30, 30, 30}; // titles
    Rgb soft = {90, 90, 90};   // numbers
    Rgb faint = {190, 190, 190};
};

struct Layout_s {
    double unit = 1; // pixels that are one at a picture of 960 rows
    int width = 0;
    int height = 0;
    Area_s data;
    Area_s legendBar;
    Inks_s inks;
};

/// For a picture of that size in pixels. `pixelRatio`: how many of them, along an edge, a display
/// with small ones has for one of usual size.
Layout_s layoutOf(const SceneContent_s& content, int width, int height, double pixelRatio = 1);

} // namespace plot3d::scene
