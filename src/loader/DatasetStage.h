// Creates the host's data set or extends the one that is there, and takes back what it can on
// failure.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Runs the stage. False: it failed or was interrupted, which has been told, and the host's data
/// set has been cleaned up: a fresh load leaves an empty frame.
bool createDatasetAndZones(Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
