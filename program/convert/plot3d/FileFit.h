// Whether a PLOT3D file can hold what is planned for it.
#pragma once

#include <string>

#include "convert/plot3d/FileContents.h"

namespace plot3d::program {

/// Throws Error (Unsupported) if the zones can't be written so: too many for the layout, of another
/// shape, without a field, or with sizes beyond 32 bits.
void refuseUnfit(const Contents& contents, const FilePlan_s& plan);

/// "3d-whole": as users write it.
std::string wordOf(Layout layout);

} // namespace plot3d::program
