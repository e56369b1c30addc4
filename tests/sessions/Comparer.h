// Holds what the reference host holds against what the model expects.
#pragma once

#include <string>

#include "session/ReferenceHost.h"
#include "sessions/ExpectedDataSet.h"

namespace quorvia::sessions {

/// The first difference in the data set, for people; empty if there is none. `fetches`: every value
/// is asked for and compared, otherwise what the fields are alone.
std::string findDifference(host::ReferenceHost& host, const ExpectedHost_s& expected, bool fetches);

} // namespace quorvia::sessions
