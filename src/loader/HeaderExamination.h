// The headers of all files of a load: each file's structure is found, no field value is read.
#pragma once

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// Fills the context's three lists of records, and settles what the headers tell: solution files
/// that are function files in truth change lists, and a load from a selection with function files
/// takes its times from their names. False (told): a file was refused. False (not told): the user
/// interrupted. What the headers tell is settled also then.
[[nodiscard]] bool examineFiles(Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
