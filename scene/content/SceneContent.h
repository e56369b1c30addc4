// All that is drawn for a view, in plain arrays. Immutable once it is made; one for another time,
// variable or surface shares with the one before whatever is the same, so that comparing pointers
// tells what changed.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "surfaces/Mesh.h"
#include "view/View.h"

namespace plot3d::scene {

/// One for each point of a mesh. Not finite where there is none.
struct PointValues_s {
    std::vector<double> values;
    std::optional<Range_s> range; // of the finite ones among points that are drawn; none: no such
};

/// Arrows at some of a mesh's points.
struct Arrows_s {
    std::vector<double> points;     // x, y, z of each
    std::vector<double> directions; // likewise, as in the file
    double longest = 0;
};

/// Edges of a mesh's cells, each once.
struct GridLines_s {
    std::vector<std::int32_t> lines; // two points of the mesh each
};

/// Edges of a zone.
struct Outline_s {
    std::vector<double> points;              // x, y, z of each
    std::vector<std::vector<int>> polylines; // each a list of points
};

struct ZonePart_s {
    std::size_t zone = 0; // index from 0
    std::shared_ptr<const Mesh_s> mesh;
    std::shared_ptr<const PointValues_s> values;  // null: the zone has none, and is drawn grey
    std::shared_ptr<const GridLines_s> gridLines; // null: not asked for
    std::shared_ptr<const Arrows_s> arrows;       // null: none asked for, or the zone has none
    std::shared_ptr<const Outline_s> outline;     // null: not asked for
};

/// Of a plot of lines.
struct Curve_s {
    std::size_t zone = 0;
    std::string name;
    Box box; // the line in the zone
    std::vector<double> abscissas;
    std::vector<double> ordinates;
};

struct SceneContent_s {
    View_s view; // as asked for, with what was left open filled in: plot, colour, time, range
    std::size_t timeStep = 0;      // index from 0
    std::vector<ZonePart_s> parts; // those that have something to draw
    std::vector<Curve_s> curves;   // of a plot of lines
    Range_s range;                 // of the colours; of a plot of lines: of the ordinates
    bool hasValues = false;        // whether anything is coloured
    Bounds_s bounds;
    std::string title;      // names of the files, and the time where there are several
    std::string colourName; // what is coloured, as the legend has it
    std::string summary;    // one line: variable, range, map, view and surfaces
    std::array<std::string, 2> abscissaNames; // of a plot of lines: of X and Y
    std::vector<std::string> notes;           // what could not be shown, one line each
};

} // namespace plot3d::scene
