// The size test: the last word of a parser that judges.
#pragma once

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Whether the header accounts for the data behind it: every byte of plain binary, the first grid's
/// records of Fortran, the first scalars' line of text. The stream stands behind the header.
/// False (not told): it does not.
[[nodiscard]] bool checkDataSize(Plot3DFile_s& file);

} // namespace quorvia::quorutildataio
