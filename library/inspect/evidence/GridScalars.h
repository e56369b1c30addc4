// The scalars ahead of each grid's variables.
#pragma once

#include <vector>

#include <plot3d/FileInfo.h>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

/// One for each grid, as far as they are in the file; empty where the style has none.
std::vector<plot3d::Scalars> scalarsOf(Evidence_s& evidence);

} // namespace plot3dlib
