// Whether the incoming files can be joined to the data set that is in the host.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Fills `existingZoneCount`, the shape's `existingVarCount` and `firstNewZone`, and may set its
/// `hasIBlank`. Changes nothing in the host. False (told): they can't be joined.
[[nodiscard]] bool checkDatasetCompatibility(Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
