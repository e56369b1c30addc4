// The trials of structure detection: which candidates are tried, and in which order.
// docs/detection.md tells it in prose.
#pragma once

#include "instructions/Plot3DStructure.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

// The trials, from the innermost to the outermost. Each writes its candidate into the record and
// leaves the accepted structure there. The file is open. Once a read has failed none is accepted.
// They throw std::bad_alloc. False (not told): nothing fits, which is normal, or a read failed.
[[nodiscard]] bool tryIBlank(Plot3DFile_s& file, bool hasIBlank);
[[nodiscard]] bool tryPrecision(Plot3DFile_s& file, bool isDoublePrecision);
/// Both precisions, in the order of the file's encoding; of text only the one that stands there.
/// False (not told): neither fits.
[[nodiscard]] bool tryPrecisions(Plot3DFile_s& file);
[[nodiscard]] bool tryStyle(Plot3DFile_s& file, Plot3DStyle_e style);
[[nodiscard]] bool tryDataStructure(Plot3DFile_s& file, Plot3DDataStructure_e dataStructure);
[[nodiscard]] bool searchStructure(Plot3DFile_s& file);
/// A second chance for what that search could not know: the byte order of plain binary, and
/// records of a Fortran file that are longer than its header says. Text has none. False (not told):
/// that doesn't fit either.
[[nodiscard]] bool searchOnceMore(Plot3DFile_s& file);

} // namespace quorvia::quorutildataio
