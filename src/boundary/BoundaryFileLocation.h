// Where the boundary file of a grid file is looked for.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Looks for the first grid file's whole name with ".fvbnd", then ".FVBND", appended, and stores
/// the one that opens in `boundaryFile`. False (not told): there is none, or no grid file. False
/// (told): none that is there opens. `boundaryFile` is empty then.
[[nodiscard]] bool findBoundaryFile(Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
