// A field, or a plane of one, on its way into a zone: registered for load on demand, or read at
// once.
#pragma once

#include <cstdint>

#include "dataset/items/ItemContext.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Sets up one field, or one K plane of one: registers it for load on demand if it is a whole field
/// of a binary or Fortran file, and reads it now otherwise. `zone` counts the selected grids from
/// 0. False (told): it can't be read or set up, with `report`. False (not told): without, or the
/// user has interrupted.
[[nodiscard]] bool setUpVariableItem(Plot3DFile_s& file, std::int32_t grid, std::int32_t zone,
                                     bool include, std::int32_t varIndex, std::int32_t plane,
                                     bool isIBlank, bool report,
                                     const Plot3DItemContext_s& context);

} // namespace quorvia::quorutildataio
