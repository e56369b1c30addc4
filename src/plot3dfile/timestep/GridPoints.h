// Points of a grid, and those that the load's index ranges select.
#pragma once

#include <cstdint>
#include <optional>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Index ranges resolved for one grid.
struct Plot3DGridRanges_s {
    Plot3DIndexRange_s i;
    Plot3DIndexRange_s j;
    Plot3DIndexRange_s k;
    bool isSubset; // some point of the grid may not be selected
};

/// Index ranges don't apply to unstructured grids: all nodes are selected.
Plot3DGridRanges_s resolveGridRanges(const Plot3DIndexRange_s& iRange,
                                     const Plot3DIndexRange_s& jRange,
                                     const Plot3DIndexRange_s& kRange, const Plot3DGridDims_s& dims,
                                     bool isUnstructured);
Plot3DGridRanges_s resolveGridRanges(const Plot3DLoadOptions_s& options, const Plot3DFile_s& file,
                                     std::int32_t gridIndex);

/// The product of the three ends: the points of a whole grid. Empty if it passes 64 bits.
std::optional<std::int64_t> countUpToEnds(const Plot3DGridRanges_s& ranges);

/// The selected points. Empty if they pass 64 bits.
std::optional<std::int64_t> countSelected(const Plot3DGridRanges_s& ranges);

} // namespace quorvia::quorutildataio
