// Creates the host's data set or extends the one that is there, and takes back what it can on
// failure.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Whether the data set, as the stage would make it, has what the files need: all the variables
/// that they fill, and the elements that solutions leave to zones which are there. Changes nothing.
/// False: told.
bool checkNeeds(const Plot3DLoadContext_s& context);

/// Runs the stage. False: it failed or was interrupted, which has been told, and the host's data
/// set has been cleaned up: a fresh load leaves an empty frame.
bool createDatasetAndZones(Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
