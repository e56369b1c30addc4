// Which strand a grid's zone belongs to, from time step to time step: by the grid's dimensions
// alone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

struct Plot3DStrandEntry_s {
    std::string zoneKey; // decimal number of the zone that opened the strand
    std::int32_t strand; // from 1
};

/// The strands of grids with one set of dimensions, in the order in which they were opened. A file
/// set takes them from the front, so that those in use always come first.
struct Plot3DStrandSeries_s {
    std::vector<Plot3DStrandEntry_s> entries;
    std::size_t usedCount = 0; // taken by zones of the current file set
};

/// Orders dimensions by I, then J, then K.
class Plot3DGridDimsLess {
public:
    bool operator()(const Plot3DGridDims_s& a, const Plot3DGridDims_s& b) const;
};

struct Plot3DStrandMap_s {
    std::map<Plot3DGridDims_s, Plot3DStrandSeries_s, Plot3DGridDimsLess> series;
    std::int32_t nextStrand = 1;
    bool newStrandEachStep = false; // every zone takes a new strand

    /// The entry that a grid of these dimensions takes: the first one not yet used in this file
    /// set, else a new one.
    Plot3DStrandEntry_s strandForGrid(const Plot3DGridDims_s& dims, const std::string& zoneKey);

    /// Begins a file set: entries that the last one did not use are dropped.
    void beginFileSet();
};

} // namespace quorvia::quorutildataio
