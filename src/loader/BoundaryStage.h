// The boundary file of a load, as zones of the data set.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Whether the boundary file that was found can be loaded; asked before anything else is done.
/// False: it can't, which has been told.
bool canLoadBoundaryFile(const Plot3DLoadOptions_s& options);

/// Reads the boundary file and adds its zones, which go into `zonesAdded` (borrowed) too. A failure
/// is told and leaves the load as it is.
void addBoundaryZones(Plot3DLoadContext_s& context, QuorSetHandle zonesAdded);

} // namespace quorvia::quorutildataio
