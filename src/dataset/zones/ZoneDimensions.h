// How large a grid is as a zone.
#pragma once

#include <cstdint>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Sizes of a zone in points, or nodes, elements and corners.
struct Plot3DZoneDims_s {
    std::int64_t i;
    std::int64_t j;
    std::int64_t k;
};

/// Sizes that a grid, counted from 0, has as a zone under the load's index ranges. The host's
/// `zone` is asked for its elements if the grid is unstructured and the handler has no grid file.
Plot3DZoneDims_s zoneDimensionsForGrid(const Plot3DLoadOptions_s& options,
                                       const Plot3DFileHandler& handler, std::int32_t gridIndex,
                                       std::int32_t zone);

} // namespace quorvia::quorutildataio
