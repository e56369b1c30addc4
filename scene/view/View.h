// What a picture shows of a data set, and how: a plain description that can be saved, read back and
// given on a command line. What is left open is chosen from the data (content/Choices.h). Its form
// as JSON, schema "plot3d.view/1", is told in docs/render.md. Zones and indices count from 1 here,
// as people count.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "view/Vector3.h"

namespace plot3d::scene {

enum class PlotKind_e : unsigned char {
    Auto, // by the dimensions that a plot of the data set begins with
    Space,
    Plane, // seen from above, with equal scales
    Lines  // values over a coordinate
};

enum class SurfaceKind_e : unsigned char { Outer, I, J, K, Boundary };

struct SurfaceWish_s {
    SurfaceKind_e kind = SurfaceKind_e::Outer;
    /// Of I, J and K: planes from 1, or from the end: -1 is the last. A zone without such a plane
    /// shows nothing.
    std::vector<std::int64_t> indices;
    /// Of Boundary: the name of boundary zones, with * and ?; case does not count.
    std::string boundary;

    bool operator==(const SurfaceWish_s&) const = default;
};

/// Points whose I-blank is 0 hide the cells that they are corners of, or don't.
enum class BlankWish_e : unsigned char {
    Hide,
    Show,
    Colour // shown, and I-blank is what is coloured
};

struct Range_s {
    double least = 0;
    double most = 1;

    bool operator==(const Range_s&) const = default;
};

/// What the range is taken from where it is not given.
enum class RangeOver_e : unsigned char {
    Shown,    // the points that are drawn
    Time,     // all points of the zones shown, at the time shown
    AllTimes, // all points of these zones at all times
    Zone      // all points of one zone, whether it is shown or not
};

struct Camera_s {
    Vector3 direction = {-1, -1.6, 0.9}; // from the data towards the eye; any length but 0
    Vector3 up = {0, 0, 1};
    double zoom = 1; // 1: all that is shown fits
    /// What stands in the middle of the free area of the picture; without it the middle of what is
    /// shown.
    std::optional<Vector3> focus;

    bool operator==(const Camera_s&) const = default;
};

struct View_s {
    PlotKind_e plot = PlotKind_e::Auto;
    std::vector<std::size_t> zones; // numbers from 1, ascending; empty: all
    std::optional<double> time;     // the step nearest to it; none: the first
    std::vector<SurfaceWish_s> surfaces = {SurfaceWish_s()};
    /// Of a plot of lines through a grid: the indices from 1 (-1: the last) that are held, 0 for
    /// the direction of the line.
    std::optional<std::array<std::int64_t, 3>> line;
    std::string colour; // variable, or word or number of a derived quantity; empty: chosen;
                        // "none": plain grey
    std::optional<Range_s> range;
    RangeOver_e rangeOver = RangeOver_e::Shown;
    std::size_t rangeZone = 1;   // of RangeOver_e::Zone: the zone's number
    std::string map = "viridis"; // colours/ColourMap.h
    bool gridLines = false;
    int contours = 0;    // number of contour lines, at values spread evenly over the range
    std::string vectors; // "velocity" and other derived vectors, or three variables: "A,B,C"
    BlankWish_e blank = BlankWish_e::Hide;
    bool outlines = false; // edges of the zones
    bool axes = true;
    bool legend = true;
    bool title = true;
    std::string titleText; // empty: the names of the files
    Camera_s camera;
    std::array<int, 2> size = {1280, 960}; // pixels of a picture
    std::string background = "white";      // a word or #RRGGBB

    bool operator==(const View_s&) const = default;
};

} // namespace plot3d::scene
