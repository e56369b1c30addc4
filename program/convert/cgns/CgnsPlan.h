// How zones and times go into CGNS: a zone there is a grid through all times, with a solution for
// each of them, and with coordinates for each of them where it moves. Where grids come, go or
// change their size, each zone is one there, too, and lists tell which are seen at which time.
#pragma once

#include <cstddef>
#include <vector>

#include "convert/contents/Contents.h"

namespace plot3d::program {

struct CgnsZonePlan_s {
    /// Indices of the contents' zones, one for each time; a single one of a zone that is seen at
    /// all times.
    std::vector<std::size_t> zones;
    int cellDimension = 3; // 2 for surfaces, 1 for lines
    bool moves = false;
};

/// Throws Error (Unsupported) if a zone has more points than libcgns can count.
std::vector<CgnsZonePlan_s> planCgnsZones(const Contents& contents);

/// Whether some zone is not seen at some time.
bool needsZoneLists(const Contents& contents, const std::vector<CgnsZonePlan_s>& plans);

} // namespace plot3d::program
