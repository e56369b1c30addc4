// How many fields a file can have at most. The counts of variables and species come from headers
// and can be anything; names, offsets and zones are made only as far as the file's size bears them
// out.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Every field has at least one value, so that a file can't have more fields than values. In text a
/// repeat count can stand for many values in a few characters; there one field for each byte is
/// granted, and a thousand to any file.
std::int64_t fieldCountLimit(const Plot3DFile_s& file);

/// Whether `numVars` fields in each of the file's grids stay below that limit. A negative count is
/// not plausible.
bool isFieldCountPlausible(const Plot3DFile_s& file);

/// Whether the elements of all grids of an unstructured grid file, of 16 bytes each, fit into it;
/// in text they are held against the limit of fields. Of other files: true.
bool isElementCountPlausible(const Plot3DFile_s& file);

/// The first file of a time step for which one of these does not hold. Null (not told): there is
/// none.
[[nodiscard]] const Plot3DFile_s* findImplausibleFile(const Plot3DFileHandler& handler);
/// Whether there is none.
bool areCountsPlausible(const Plot3DFileHandler& handler);

/// Values that a text file may promise for each of its bytes: scalars, fields of all its grids,
/// connectivity. A repeat token promises billions in a few characters.
constexpr std::int64_t mostValuesPerByte = 64;

/// Whether a text file of `fileBytes` bytes promises no more than that. Of other files: true.
bool isValueCountPlausible(const Plot3DFile_s& file, std::int64_t fileBytes);

} // namespace quorvia::quorutildataio
