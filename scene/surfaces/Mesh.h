// The surfaces of one zone as plain arrays: what is drawn, and from where in the zone it came.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include <plot3d/Box.h>

namespace plot3d::scene {

/// One plane of a zone's indices: a box in which one direction has one index (or more, in zones
/// that are thinner themselves). Its points stand behind one another in the mesh, in the box's
/// order.
struct Patch_s {
    Box box;
    std::int64_t firstPoint = 0;
};

/// Lowest and highest coordinates; `least` above `most`: of nothing.
struct Bounds_s {
    std::array<double, 3> least = {1, 1, 1};
    std::array<double, 3> most = {0, 0, 0};

    bool isEmpty() const { return least[0] > most[0]; }
    void add(const Bounds_s& other);
    void add(double x, double y, double z);
};

/// A point of a zone; of an unstructured zone its node along I. From 0.
struct Place_s {
    std::int64_t i = 0;
    std::int64_t j = 0;
    std::int64_t k = 0;

    bool operator==(const Place_s&) const = default;
};

struct Mesh_s {
    std::vector<Patch_s> patches;          // none of an unstructured zone
    std::vector<double> points;            // x, y, z of each
    std::vector<float> normals;            // likewise, of length 1; none of plane data
    std::vector<std::int32_t> quads;       // four points each; hidden cells are left out
    std::vector<std::int32_t> triangles;   // three points each, of unstructured zones
    std::vector<std::int32_t> lines;       // two points each, of zones that are lines
    std::vector<std::int32_t> coarseQuads; // the same surfaces with fewer cells, for a view that
                                           // turns; none if there are few anyway
    std::vector<std::int32_t> nodes;       // of an unstructured zone: node of each point, from 0
    std::int64_t hiddenCells = 0;          // that I-blank hides
    Bounds_s bounds;                       // of points with finite coordinates

    std::int64_t pointCount() const { return static_cast<std::int64_t>(points.size() / 3); }
    /// Of a point of the mesh, from 0.
    Place_s placeOf(std::int64_t point) const;
};

/// For each point 1 if a cell that is drawn has it, 0 otherwise; empty if all points are drawn.
std::vector<char> drawnPoints(const Mesh_s& mesh);

} // namespace plot3d::scene
