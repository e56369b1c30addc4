// Which planes of a zone's indices are shown.
#pragma once

#include <vector>

#include <plot3d/Box.h>

#include "surfaces/Mesh.h"
#include "view/View.h"

namespace plot3d::scene {

/// The planes that the wishes (Outer, I, J and K) name in a zone of that size, each once, with
/// their places in a mesh. The outer surface of a zone that is a plane or a line itself is all of
/// it.
std::vector<Patch_s> patchesOf(const Extent& size, const std::vector<SurfaceWish_s>& wishes);

/// Points of all patches.
std::int64_t pointCountOf(const std::vector<Patch_s>& patches);

} // namespace plot3d::scene
