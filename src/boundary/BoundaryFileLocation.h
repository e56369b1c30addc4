// Where the boundary file of a grid file is looked for.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Looks for the first grid file's whole name with ".fvbnd", then ".FVBND", appended, and stores
/// the one that opens in `boundaryFile`. False: there is none, or no grid file; `boundaryFile` is
/// empty. One that is there and does not open has been told.
bool findBoundaryFile(Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
