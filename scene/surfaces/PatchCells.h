// The cells of a patch, and the directions that its points face.
#pragma once

#include <cstdint>
#include <vector>

#include "surfaces/Mesh.h"

namespace plot3d::scene {

/// Cells as point indices of the mesh.
struct PatchCells_s {
    std::vector<std::int32_t> quads; // four each
    std::vector<std::int32_t> lines; // two each, of a patch that is a line
    std::int64_t hidden = 0;
};

/// The cells between points that are `step` apart (the last ones of a row or column always among
/// them). A cell with a corner whose I-blank is 0, or whose coordinates are not finite, is hidden.
/// `points`: x, y, z of all points of the mesh; `blank`: I-blank of each, empty if there is none.
PatchCells_s cellsOf(const Patch_s& patch, const std::vector<double>& points,
                     const std::vector<double>& blank, std::int64_t step = 1);

/// Fills x, y, z of the normals at the patch's points, of length 1: means of the cells' around
/// them. Where all of these are flat to nothing it is along Z.
void fillNormals(const Patch_s& patch, const std::vector<double>& points,
                 std::vector<float>& normals);

} // namespace plot3d::scene
