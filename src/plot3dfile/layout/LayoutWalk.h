// The walk over the items of a file whose header has been read: scalars, variables, I-blank and
// connectivity of each grid, in file order. Shared by the layout parsers.
#pragma once

#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::quorutildataio {

/// Delivers every item of `numGrids` grids. The stream stands behind the header. False
/// (told): a record is missing, with `report`. False (not told): it is, without; or the receiver
/// stopped the walk.
[[nodiscard]] bool walkGrids(Plot3DFile_s& file, bool report, QuorSetHandle gridSet,
                             const Plot3DItemReceiver_s& receiver);

} // namespace quorvia::quorutildataio
