// Whether a file's grids fit the zones that they are about to fill. The sizes of zones come from
// one file of a time step and the values from others; a host's array must never be written past its
// end.
#pragma once

#include "dataset/zones/FileSetSetup.h"

namespace quorvia::quorutildataio {

/// Whether each grid that a walk through the file selects has a zone of the file set, with as many
/// points as the load selects of the grid.
bool fitsZones(const Plot3DFile_s& file, const Plot3DFileSetRequest_s& request);

/// The same for zones that other loads have made, from `firstZone` on, all up to `zoneCount`.
bool fitsExistingZones(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options,
                       std::int32_t firstZone, std::int32_t zoneCount);

/// Whether the load leaves out points of a selected grid.
bool isSubsetTaken(const Plot3DFile_s& file, const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
