// Boundaries as zones of the data set: ordered zones that show a part of a grid, with all variables
// of the load. docs/boundary-files.md tells users what they get.
#pragma once

#include <cstdint>
#include <vector>

#include "boundary/BoundaryFile.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// Adds a zone for each boundary behind all zones of the load; with strands for each time step,
/// otherwise for the first. `names` and `zonesAdded` are borrowed; the new zones go into the
/// latter. `parentZones` holds, by zone number minus 1, the running number of the grid that the
/// zone shows. The first handler's grid file must have been scanned. False (not told): a zone or
/// field could not be made. False (told): a file did not open. What was made before it stays.
[[nodiscard]] bool createBoundaryZones(const Plot3DLoadOptions_s& options,
                                       std::vector<Plot3DFileHandler>& handlers,
                                       const Plot3DBoundary_s* boundaries,
                                       QuorStringListHandle names, bool assignStrandIDs,
                                       const HostArray<std::int32_t>& parentZones,
                                       QuorSetHandle zonesAdded);

/// Adds one zone of `numI` x `numJ` x `numK` points, which must become the zone with the number
/// `zone`, and puts it into `zonesAdded`. `parentZone` 0 is none; strand and time count only with
/// `assignStrandIDs`. False (not told): no memory, or the host refused the zone.
[[nodiscard]] bool addBoundaryZone(const Plot3DBoundary_s& boundary, const char* name,
                                   std::int64_t numI, std::int64_t numJ, std::int64_t numK,
                                   std::int32_t zone, std::int32_t strand, double solutionTime,
                                   bool assignStrandIDs, std::int32_t parentZone,
                                   QuorSetHandle zonesAdded);

} // namespace quorvia::quorutildataio
