// Flat marks over or beside what is shown: lines, rectangles and texts, in pixels from the lower
// left corner of the picture.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "colours/ColourMap.h"

namespace plot3d::scene {

using Pixel = std::array<double, 2>;

struct LineMark_s {
    std::vector<Pixel> points;
    double width = 1;
    Rgb colour = {};
};

/// Filled.
struct AreaMark_s {
    Pixel corner = {}; // lower left
    double width = 0;
    double height = 0;
    Rgb colour = {};
};

enum class Across_e : unsigned char { Left, Centre, Right }; // where `at` is in the text
enum class Along_e : unsigned char { Bottom, Middle, Top };

struct TextMark_s {
    Pixel at = {};
    std::string text; // UTF-8, one line
    double size = 14; // pixels
    Rgb colour = {};
    Across_e across = Across_e::Left;
    Along_e along = Along_e::Middle;
    bool isBold = false;
    bool isUpright = false; // turned by a quarter to the left
};

/// Drawn in this order: areas, lines, texts.
struct Drawing_s {
    std::vector<AreaMark_s> areas;
    std::vector<LineMark_s> lines;
    std::vector<TextMark_s> texts;
};

} // namespace plot3d::scene
