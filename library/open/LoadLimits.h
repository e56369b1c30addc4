// Loads whose values the add-on would take from wrong places, which docs/ tells of: they are
// refused here, or found out.
#pragma once

#include <plot3d/DataSet.h>

#include "open/Content.h"

namespace plot3dlib {

/// Throws plot3d::Error: (Usage) for an instruction that no load knows or would take for something
/// else; (Unsupported) for a set of grids beside a range that has an end: the grids behind one that
/// is not loaded would be read from wrong places.
void demandReadable(const plot3d::OpenOptions& options);

/// Of a load whose later files took over the structure of the first: false if some of them can't
/// have been read so. Planes stand in memory at the first step and in the file at later ones;
/// later unstructured grids come without their elements.
bool isComplete(const Content_s& content);

} // namespace plot3dlib
