// The scalars ahead of a grid's variables: reference numbers as auxiliary data, and the solution
// time. docs/variables.md holds the table of scalars of each style.
#pragma once

#include <cstdint>

#include "dataset/items/ItemContext.h"
#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Reads the scalars of one grid through the number stream and, with `include`, sets them on the
/// zone and the data set and notes their file position. `zone` counts the selected grids from 0.
/// False (told): one can't be read or set, with `report`. False (not told): without, or the user
/// has stopped the read.
[[nodiscard]] bool setUpScalarsItem(Plot3DFile_s& file, std::int32_t zone, bool include,
                                    bool report, const Plot3DItemContext_s& context);

/// Reads the scalars of one grid of a binary or Fortran file from the stream's position straight
/// into the auxiliary data of the host's `zone`; the way of files that are not scanned.
/// False (not told): one can't be read or set.
[[nodiscard]] bool rereadScalars(Plot3DFile_s& file, std::int32_t zone,
                                 const Plot3DItemContext_s& context);

/// Reads a real and, with `include`, makes it, or the time of the file's name, the time of the
/// host's `zone`. False (not told): there is none to read.
[[nodiscard]] bool setZoneSolutionTime(Plot3DFile_s& file, bool include, std::int32_t zone,
                                       const std::map<std::string, double>& solutionTimes,
                                       bool extractTimes);

/// A Plot3DFunctionTimeCallback; `clientData` is a Plot3DItemContext_s. Takes the zone's time from
/// the file's name if times were extracted. False (told): this file has none.
[[nodiscard]] bool setFunctionZoneSolutionTime(Plot3DFile_s& file, std::int32_t zone, bool include,
                                               void* clientData);

/// Reads one scalar without regard to record markers and sets it on a zone. An item whose name
/// begins with a letter from I to N is a 4-byte integer, any other a real.
/// False (not told): it can't be read or set.
[[nodiscard]] bool readScalarToAuxData(FileStream& stream, bool isDoublePrecision, bool byteSwap,
                                       QuorAuxDataHandle zoneAuxData, const char* itemName);

} // namespace quorvia::quorutildataio
