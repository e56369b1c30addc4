// Later file sets: grids shared with the first one, and fields registered at the positions that the
// scan of the first file noted.
#pragma once

#include <cstdint>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Makes the grid's fields of the zones from `destinationBaseZone` on those of the zones from
/// `sourceBaseZone` on: shared, or copied if the host forbids or refuses that. A field that is
/// passive in its source stays empty. False (told): a field can't be had. False (not told): because
/// the user has interrupted.
[[nodiscard]] bool shareGridVariables(const Plot3DLoadOptions_s& options,
                                      const Plot3DFileHandler& handler, std::int32_t numSpatialVars,
                                      std::int32_t sourceBaseZone, std::int32_t destinationBaseZone,
                                      bool hasIBlank);

/// Registers the fields of `current` at the positions of `primary`, without opening it. False (not
/// told): a position is missing, the host refused a field, or the user has interrupted.
[[nodiscard]] bool reuseGridOffsets(const Plot3DFile_s& primary, const Plot3DLoadOptions_s& options,
                                    std::int32_t firstZone, const Plot3DFile_s& current);

/// Registers the fields of `file`, which holds the primary's positions and is open, and reads its
/// scalars. `varBase` is the number of variables ahead of the solution's. False (not told): as
/// reuseGridOffsets, or a scalar can't be read.
[[nodiscard]] bool reuseSolutionOffsets(Plot3DFile_s& file, const Plot3DLoadOptions_s& options,
                                        std::int32_t firstZoneOfLoad, std::int32_t firstZone,
                                        std::int32_t varBase);

} // namespace quorvia::quorutildataio
