// The page "Data Subset": which part of each grid, and which grids, are loaded.
#pragma once

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Makes the page with its controls, once. False (not told): the host could not make all of it.
[[nodiscard]] bool buildDataSubsetPage();

/// Shows the options. The K range is shown for data of any dimension.
void refreshDataSubsetPage(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
