// Takes every item of a walk through a file to what is done with it: fields are registered for load
// on demand or read at once, scalars become times and auxiliary data, connectivity is read.
#pragma once

#include <cstdint>

#include "dataset/items/ItemContext.h"
#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::quorutildataio {

/// A Plot3DItemCallback; `clientData` is a Plot3DItemContext_s. False (told): as each kind of
/// item says, with `report`. False (not told): so, too, or the user has interrupted.
[[nodiscard]] bool dispatchItem(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid,
                                std::int32_t zone, bool include, std::int32_t varIndex,
                                std::int32_t plane, bool report, void* clientData);

/// Scans the open file with the parser of its structure, item by item into dispatchItem. A long
/// read asks whether the user has interrupted. False (told): an item or a record failed. False (not
/// told): a solution or function file with I-blank, or the user has interrupted.
[[nodiscard]] bool scanFile(Plot3DFile_s& file, QuorSetHandle gridSet,
                            Plot3DItemContext_s& context);

} // namespace quorvia::quorutildataio
