// The fields of boundary zones. They stay in the files until the host asks: then the whole field of
// the parent grid is read and the boundary's points are kept.
#pragma once

#include <cstdint>
#include <memory>

#include "boundary/BoundaryFile.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// By what the fields of one source file are read: a copy of its record, closed, which holds no
/// positions. They share it, since it tells the dimensions of every grid; the host's lock keeps
/// their fetches apart.
using Plot3DSharedFile = std::shared_ptr<Plot3DFile_s>;

/// Null (not told): no memory.
[[nodiscard]] Plot3DSharedFile copyForFields(const Plot3DFile_s& file);

/// What the host keeps for one variable of one boundary zone, in a block of its own memory. Nothing
/// of the load has to live on for it.
struct Plot3DBoundaryClientData_s {
    std::int64_t gridOffset = 0; // file position of the first variable of the parent grid
    std::int64_t varOrdinal = 0; // the variable's place among those of the grid, from 1
    std::int64_t zoneId = 0;     // identities at the host of what it was set up for; no fetch goes
    std::int64_t varId = 0;      // by them, since zones that share the field may outlive that one
    Plot3DBoundaryList boundary; // alone, without what follows it
    std::int32_t skipI = 1;
    std::int32_t skipJ = 1;
    std::int32_t skipK = 1;
    Plot3DSharedFile file;
};

/// The boundary's range along a direction, with the load's stride; its end is always selected.
struct Plot3DBoundaryRanges_s {
    Plot3DIndexRange_s i;
    Plot3DIndexRange_s j;
    Plot3DIndexRange_s k;
};
Plot3DBoundaryRanges_s boundaryRanges(const Plot3DBoundary_s& boundary, std::int32_t skipI,
                                      std::int32_t skipJ, std::int32_t skipK);

/// Has the host fetch the variables from `firstVar` to `lastVar` of a zone from `file` on demand,
/// by `shared`, its copy. `file` must have been scanned, since its `varOffsets` tell where the
/// grids are. False (not told): they don't, there is no copy, or the host refuses a variable; those
/// ahead of it stay set up.
[[nodiscard]] bool setUpBoundaryVars(const Plot3DFile_s& file, const Plot3DSharedFile& shared,
                                     std::int32_t skipI, std::int32_t skipJ, std::int32_t skipK,
                                     const Plot3DBoundary_s& boundary, std::int32_t zone,
                                     std::int32_t lastVar, std::int32_t firstVar);

/// The callbacks of a boundary zone's fields. A failed fetch, also an interrupted one, leaves the
/// file closed and holds nothing; it may be tried again. False (told): the file does not open.
/// False (not told): any other failure.
[[nodiscard]] bool loadBoundaryVar(QuorFieldHandle field);
[[nodiscard]] bool unloadBoundaryVar(QuorFieldHandle field);
void cleanUpBoundaryVar(QuorFieldHandle field);

} // namespace quorvia::quorutildataio
