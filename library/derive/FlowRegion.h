// Where the values are read that derivatives at a zone's points need. A boundary is a part of its
// grid: its derivatives are those of the grid at its points, and need the points beside them.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include <plot3d/Box.h>
#include <plot3d/DataSet.h>

#include "derive/FlowVariables.h"

namespace plot3dlib {

struct FlowRegion_s {
    std::size_t zone = 0; // index from 0
    plot3d::Box box;      // of that zone: what is read
    plot3d::Box wanted;   // the points that are asked for, counted within `box`
};

/// For derivatives at the points of `box`, of that zone. Empty for a boundary zone whose fields are
/// no parts of those of its grid, so that the points beside it are not known.
std::optional<FlowRegion_s> regionWithNeighbours(const plot3d::DataSet& data, std::size_t zone,
                                                 const plot3d::Box& box,
                                                 const FlowVariables_s& variables);

/// The values at the points that are asked for, out of those of the region.
std::vector<double> wantedOf(const FlowRegion_s& region, std::vector<double> values);

} // namespace plot3dlib
