// The trials of structure detection: which candidates are tried, and in which order.
// docs/detection.md tells it in prose.
#pragma once

#include "instructions/Plot3DStructure.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

// The trials, from the innermost to the outermost. Each writes its candidate into the record and
// leaves the accepted structure there. The file is open. Once a read has failed none is accepted.
// They throw std::bad_alloc.
bool tryIBlank(Plot3DFile_s& file, bool hasIBlank);
bool tryPrecision(Plot3DFile_s& file, bool isDoublePrecision);
/// Both precisions, in the order of the file's encoding; of text only the one that stands there.
bool tryPrecisions(Plot3DFile_s& file);
bool tryStyle(Plot3DFile_s& file, Plot3DStyle_e style);
bool tryDataStructure(Plot3DFile_s& file, Plot3DDataStructure_e dataStructure);
bool searchStructure(Plot3DFile_s& file);

} // namespace quorvia::quorutildataio
