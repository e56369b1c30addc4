// Fortran unformatted sequential records: a marker with the payload's length in bytes, the payload,
// the marker again. A record above 2147483639 bytes is a chain of segments, each between markers of
// its own: a negative leading marker says that another segment follows, a negative trailing marker
// that one precedes. Form of the markers: as gfortran and Intel Fortran document them.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The marker of a segment of full length, and the only negative one that begins a chain.
constexpr std::int64_t fullSegmentMarker = -2147483639;

/// Reads one marker, `markerSize` bytes wide and in the record's byte order, and gives the payload
/// bytes that it tells, never negative. Width and order are not guessed here. A negative marker
/// sets or clears `inSegmentedRecord`. False (not told): short read, or a negative marker that is
/// none of a chain; the stream stands behind what was read. Callers must not allocate from a
/// leading marker that the trailing one has not confirmed.
[[nodiscard]] bool readRecordMarker(Plot3DFile_s& file, std::int64_t& length);

enum class RecordWalk_e { Tiles, DoesNotTile, Interrupted };

/// Whether records of the supposed width and byte order tile the whole file. Fills
/// `segmentBoundaries`. Asks the host, or the file's observer, for an interruption after every 64
/// MiB of the file; a read error is one that does not tile.
RecordWalk_e walkFortranRecords(Plot3DFile_s& file);

/// The same. False (not told): they do not, or the walk was interrupted.
[[nodiscard]] bool checkFortranRecords(Plot3DFile_s& file);

/// Moves to the first payload byte of the next record, with `recordLength` its payload over all
/// segments. True at once for other encodings. False (told): there is none, with `report`, the
/// text ending in " for " and `context` unless that is null. False (not told): without `report`, or
/// the read was stopped.
[[nodiscard]] bool nextRecord(Plot3DFile_s& file, bool report, const char* context);

/// Whether the current record, or the current line of a text file, is used up. False (not told): it
/// is not.
[[nodiscard]] bool atRecordEnd(Plot3DFile_s& file);

/// Whether nothing but the last marker or line ends remain. False (told): more does, with
/// `report`. False (not told): without.
[[nodiscard]] bool atFileEnd(Plot3DFile_s& file, bool report);

/// Steps over the two markers between segments if the stream stands there. False (not told): the
/// seek failed, or it stands at the end of the current record, which is noted like the end of a
/// segment.
[[nodiscard]] bool skipSegmentBoundary(Plot3DFile_s& file);

/// Reads the next `byteCount` bytes that are no markers between segments, wherever these stand: at
/// the true length of a segment the first of them cuts a value in two. Gives how many came; fewer
/// mean the end of the file or of the record, or a read error.
std::int64_t readAcrossSegments(Plot3DFile_s& file, void* destination, std::int64_t byteCount);

} // namespace quorvia::quorutildataio
