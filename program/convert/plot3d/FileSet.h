// Which PLOT3D files hold a data set: a grid file, or one for each time where the grids move; for
// each time a solution file, and function files.
#pragma once

#include <string>
#include <vector>

#include "convert/Writer.h"
#include "convert/plot3d/FileContents.h"

namespace plot3d::program {

/// Names go from `target`: "wing.x" makes wing.x, wing.q and wing.f, of three times wing_1.q,
/// wing_2.q and wing_3.q; several function files at one time wing_f1.f and wing_f2.f. An extension
/// of its kind stays as the user wrote it. Boundary zones are left out. Throws Error (Unsupported)
/// for what PLOT3D can't hold.
std::vector<FilePlan_s> planFiles(const Contents& contents, const Target_s& target);

} // namespace plot3d::program
