// Sets up the fields of one file set. The first file of a kind is scanned and its positions noted;
// later files take the positions over without a scan, or share the grid's fields.
// docs/values-on-demand.md tells when.
#pragma once

#include <cstdint>

#include "dataset/variables/LoadShape.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// What setUpFileSet needs to know; zones and variables are the host's, from 1.
struct Plot3DFileSetRequest_s {
    const Plot3DLoadOptions_s& options;
    Plot3DFileHandler& handler;            // this file set's
    const Plot3DFileHandler& firstHandler; // the load's first file set's
    std::int32_t firstZoneOfLoad;
    std::int32_t firstZone; // of this file set
    const Plot3DLoadShape_s& shape;
    bool isFirstFileSet;
};

/// What has been set up so far stays at the host. False (told): a file does not open, has more
/// variables than the data set, can't be scanned or does not share its grid. False (not told): it
/// does not fit its zones, memory ran out, or the load is to stop.
[[nodiscard]] bool setUpFileSet(const Plot3DFileSetRequest_s& request);

} // namespace quorvia::quorutildataio
