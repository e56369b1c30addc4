// Variables that a load brings and the data set that is in the host lacks.
#pragma once

#include <cstdint>

#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// Adds the variables behind `existingVarCount` up to `wantedVarCount` to all zones, under their
/// `names` (borrowed), and raises `existingVarCount`. Gives the new ones in `varsAdded`. False:
/// they could not be added.
bool addMissingVariables(std::int32_t wantedVarCount, QuorStringListHandle names,
                         std::int32_t& existingVarCount, HostSet& varsAdded);

} // namespace quorvia::quorutildataio
