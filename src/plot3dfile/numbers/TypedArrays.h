// Blocks of values: read in bulk or one by one, or passed over. All bulk data of a load and of
// reads on demand goes through here. Index order is I fastest, then J, then K.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The boundaries strictly inside the stretch of `byteCount` bytes from `start`, ascending.
std::vector<std::int64_t>
segmentBoundariesInRange(const std::vector<std::int64_t>& segmentBoundaries, std::int64_t start,
                         std::int64_t byteCount);

/// How many boundaries lie strictly inside that stretch.
std::int64_t countSegmentBoundariesInRange(const std::vector<std::int64_t>& segmentBoundaries,
                                           std::int64_t start, std::int64_t byteCount);

/// Reads `byteCount` bytes from the stream's position, stepping over the markers between segments
/// of a Fortran file. Every stretch is measured from the block's start, also behind a second
/// boundary; one that would run past the destination by that rule fails. False (not told): that, a
/// short read, a failed seek or a negative count; the destination is partly written.
[[nodiscard]] bool readBytesAcrossSegments(FileStream& stream, const Plot3DRecordForm_s& form,
                                           void* destination, std::int64_t byteCount);

/// The same for a block of numbers of `width` bytes each, delivered in the machine's byte order. In
/// that order the block is one read; in the other it comes in pieces of 256 KiB, so that the bytes
/// are reversed while they are still in the cache. False (not told): as
/// readBytesAcrossSegments.
[[nodiscard]] bool readNumbersAcrossSegments(FileStream& stream, const Plot3DRecordForm_s& form,
                                             std::int64_t width, std::int64_t valueCount,
                                             void* destination);

/// Reads (`store`) or passes over `count` values of a binary or Fortran file into `destination`, an
/// array of 32-bit integers, or of reals of the form's precision. False (not told): as
/// readBytesAcrossSegments.
[[nodiscard]] bool readIntegerBlock(FileStream& stream, const Plot3DRecordForm_s& form, bool store,
                                    std::int64_t count, void* destination);
[[nodiscard]] bool readRealBlock(FileStream& stream, const Plot3DRecordForm_s& form, bool store,
                                 std::int64_t count, void* destination);

/// The same for who has no form; each call copies the boundaries into one. False (not told): as
/// there.
[[nodiscard]] bool readBytesAcrossSegments(FileStream& stream, std::uint32_t markerSize,
                                           const std::vector<std::int64_t>& segmentBoundaries,
                                           Plot3DEncoding_e encoding, void* destination,
                                           std::int64_t byteCount);
[[nodiscard]] bool readIntegerBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                                    const std::vector<std::int64_t>& segmentBoundaries,
                                    Plot3DEncoding_e encoding, bool store, std::int64_t count,
                                    void* destination);
[[nodiscard]] bool readRealBlock(FileStream& stream, bool byteSwap, std::uint32_t markerSize,
                                 const std::vector<std::int64_t>& segmentBoundaries,
                                 Plot3DEncoding_e encoding, bool isDoublePrecision, bool store,
                                 std::int64_t count, void* destination);

/// Read (`store`) or pass over `count` values from the stream's position. With a null `setValue`,
/// `dest` is an array of 32-bit integers, or of reals of the file's precision, and values land from
/// `firstIndex` on, counted from 0; otherwise `dest` is a QuorFieldHandle and each value goes
/// through `setValue`. False (not told): the first value that can't be read; what came before is
/// stored.
[[nodiscard]] bool readIntegers(Plot3DFile_s& file, bool store, std::int64_t firstIndex,
                                std::int64_t count, void* dest, QuorFieldSetFunction setValue);
[[nodiscard]] bool readReals(Plot3DFile_s& file, bool store, std::int64_t firstIndex,
                             std::int64_t count, void* dest, QuorFieldSetFunction setValue);

} // namespace quorvia::quorutildataio
