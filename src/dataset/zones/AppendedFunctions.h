// Function files whose variables have been added to all zones of a data set that is there.
// docs/append-and-replace.md tells the route.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Where the values of appended function files go; zones and variables are the host's, from 1.
struct Plot3DAppendedFunctions_s {
    const Plot3DLoadOptions_s& options;
    std::int32_t zoneCount; // of the data set
    std::int32_t firstVar;  // the first of the variables that were added
    std::int32_t lastVar;
};

/// Sets up the first function file of each handler on the next zones, as many as it has grids.
/// What has been set up so far stays. False (told): a file does not open, does not fit its zones,
/// or can't be scanned, or memory ran out. False (not told): it has I-blank, or the load is to
/// stop.
[[nodiscard]] bool setUpAppendedFunctions(const Plot3DAppendedFunctions_s& request,
                                          std::vector<Plot3DFileHandler>& handlers);

} // namespace quorvia::quorutildataio
