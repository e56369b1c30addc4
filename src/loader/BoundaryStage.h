// The boundary file of a load, as zones of the data set.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Reads the boundary file and adds its zones, which go into `zonesAdded` (borrowed) too. A failure
/// leaves the load as it is, with the boundary zones made so far, and has been told.
void addBoundaryZones(Plot3DLoadContext_s& context, QuorSetHandle zonesAdded);

} // namespace quorvia::quorutildataio
