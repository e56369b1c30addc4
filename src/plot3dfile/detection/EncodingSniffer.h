// How a file encodes its numbers, told from its bytes.
#pragma once

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// Finds out how the open file encodes its numbers: text, one of the four forms of Fortran records
/// (then `byteSwap`, `markerSize` and `segmentBoundaries` are set too), or plain binary. Unknown if
/// a read failed, or if the user interrupted.
void sniffEncoding(Plot3DFile_s& file);

} // namespace quorvia::quorutildataio
