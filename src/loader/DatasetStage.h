// Creates the host's data set or extends the one that is there, and takes back what it can on
// failure.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Whether the data set, as the stage would make it, has what the files need: all the variables
/// that they fill, and the elements that solutions leave to zones which are there. Changes nothing.
/// False (told): it does not.
[[nodiscard]] bool checkNeeds(const Plot3DLoadContext_s& context);

/// Runs the stage. False (told): it failed or was interrupted. False (not told): no memory, or the
/// user would not load times that are all the same. The host's data set has been cleaned up then: a
/// fresh load leaves an empty frame.
[[nodiscard]] bool createDatasetAndZones(Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
