// The record of a file as its bytes alone make it: measured and sniffed, its structure not yet
// known.
#pragma once

#include <string>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Makes the record of a file and leaves the file closed. Unless `deferOpen`, measures the file and
/// sniffs its encoding; that stays unknown if the file does not open or can't be read (told to the
/// user), or if the user interrupted (not told). Null (not told): no memory for the name.
/// Throws std::bad_alloc.
[[nodiscard]] Plot3DFilePtr createPlot3DFile(const std::string& fileName, bool deferOpen);

} // namespace quorvia::quorutildataio
