// What of a mesh is under a pixel, by the mesh and the projection alone: a million cells in some
// hundredths of a second, since nothing is asked of the drawing.
#pragma once

#include <cstdint>
#include <optional>

#include "annotation/Projection.h"
#include "surfaces/Mesh.h"

namespace plot3d::scene {

struct MeshHit_s {
    std::int64_t point = 0; // of the mesh, from 0: the corner of the cell that is nearest
    double depth = 0;       // along the projection's `towards`: the greater is in front
};

/// Of the cells at that pixel the one in front; lines count within `reach` pixels. Nothing if there
/// is none.
std::optional<MeshHit_s> hitOf(const Mesh_s& mesh, const Projection_s& projection,
                               const Pixel& pixel, double reach);

} // namespace plot3d::scene
