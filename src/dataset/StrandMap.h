// Which strand a grid's zone belongs to, from time step to time step: by the grid's dimensions alone.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "plot3dfile/Plot3DFile.h"

namespace quorvia::quorutildataio {

struct Plot3DStrandEntry_s {
    std::string zoneKey;  // decimal number of the zone that opened the strand
    std::int32_t strand;  // from 1
    bool used;            // a zone of the current file set has taken it
};

/// Orders dimensions by I, then J, then K.
struct Plot3DGridDimsLess {
    bool operator()(const Plot3DGridDims_s& a, const Plot3DGridDims_s& b) const;
};

struct Plot3DStrandMap_s {
    std::multimap<Plot3DGridDims_s, Plot3DStrandEntry_s, Plot3DGridDimsLess> entries;
    std::int32_t nextStrand = 1;
    bool newStrandEachStep = false; // every zone takes a new strand

    /// The entry that a grid of these dimensions takes: the first one not yet used in this file set,
    /// else a new one.
    Plot3DStrandEntry_s strandForGrid(const Plot3DGridDims_s& dims, const std::string& zoneKey);

    /// Begins a file set: entries that the last one did not use are dropped.
    void beginFileSet();
};

} // namespace quorvia::quorutildataio
