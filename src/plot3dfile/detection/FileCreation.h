// The record of a file as its bytes alone make it: measured and sniffed, its structure not yet
// known.
#pragma once

#include <string>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Makes the record of a file and leaves the file closed. Unless `deferOpen`, measures the file and
/// sniffs its encoding; if the file does not open (told to the user), the record stays at its
/// starting values. Null: no memory for the name.
Plot3DFilePtr createPlot3DFile(const std::string& fileName, bool deferOpen);

} // namespace quorvia::quorutildataio
