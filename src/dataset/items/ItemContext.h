// What every item of a walk through a file needs to know of the load.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

/// Zones and variables are the host's, from 1.
struct Plot3DItemContext_s {
    Plot3DIndexRange_s iRange;
    Plot3DIndexRange_s jRange;
    Plot3DIndexRange_s kRange;
    std::int32_t firstZoneOfLoad; // zone that the first zone of the load's first time step has
    std::int32_t firstZone;       // zone of the first selected grid of this file set
    std::int32_t firstVar;        // variable that the file's variable 0 goes to
    const std::map<std::string, double>*
        solutionTimes; // file path to time, borrowed of the options
    bool extractTimes; // times come from file names
};

/// The ranges, zones and times of a load; `firstVar` is 1.
Plot3DItemContext_s makeItemContext(const Plot3DLoadOptions_s& options,
                                    std::int32_t firstZoneOfLoad, std::int32_t firstZone);

} // namespace quorvia::quorutildataio
