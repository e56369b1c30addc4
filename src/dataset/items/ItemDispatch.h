// Takes every item of a walk through a file to what is done with it: fields are registered for load
// on demand or read at once, scalars become times and auxiliary data, connectivity is read.
#pragma once

#include <cstdint>

#include "dataset/items/ItemContext.h"
#include "plot3dfile/layout/LayoutParsers.h"

namespace quorvia::quorutildataio {

/// A Plot3DItemCallback; `clientData` is a Plot3DItemContext_s.
bool dispatchItem(Plot3DFile_s& file, Plot3DItemKind_e kind, std::int32_t grid, std::int32_t zone,
                  bool include, std::int32_t varIndex, std::int32_t plane, bool report,
                  void* clientData);

/// Scans the open file with the parser of its structure, item by item into dispatchItem. A solution
/// or function file with I-blank is refused without a message. A long read asks whether the user
/// has interrupted; one that was stopped tells nothing here.
bool scanFile(Plot3DFile_s& file, QuorSetHandle gridSet, Plot3DItemContext_s& context);

} // namespace quorvia::quorutildataio
