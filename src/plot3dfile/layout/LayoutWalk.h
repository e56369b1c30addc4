// The walk over the items of a file whose header has been read: scalars, variables, I-blank and
// connectivity of each grid, in file order. Shared by the layout parsers.
#pragma once

#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::quorutildataio {

/// Delivers every item of `numGrids` grids. The stream stands behind the header. False: the
/// receiver stopped the walk, or a record is missing, which has been told if `report`.
bool walkGrids(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
               const Plot3DItemReceiver_s& receiver);

} // namespace quorvia::quorutildataio
