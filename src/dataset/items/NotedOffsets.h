// The file positions that a scan notes on a file's record, for what is set up or read without one:
// fields by grid and variable, IBlank by grid, scalars by selected grid.
#pragma once

#include <cstdint>
#include <optional>

#include "plot3dfile/file/Plot3DFile.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

using Plot3DOffsets = HostArray<std::int64_t>;

/// New entries that no scan has come to. False (not told): no memory.
[[nodiscard]] bool allocateOffsets(Plot3DOffsets& offsets, std::int64_t count, const char* label);
/// The same, then the first `count` entries of `source`. False (not told): no memory, or it has
/// fewer.
[[nodiscard]] bool copyOffsets(const Plot3DOffsets& source, Plot3DOffsets& offsets,
                               std::int64_t count, const char* label);
/// Those of the fields of a function file, for `gridCount` grids. False (not told): no memory.
[[nodiscard]] bool allocateFunctionOffsets(Plot3DFile_s& file, std::int32_t gridCount);

/// Where the file's `varOffsets` hold a field; grid and variable from 0.
inline std::int64_t fieldEntry(const Plot3DFile_s& file, std::int64_t grid, std::int32_t varIndex) {
    return grid * file.numVars + varIndex;
}

/// Nothing if there is no such entry.
void noteOffset(const Plot3DOffsets& offsets, std::int64_t entry, std::int64_t position);
/// Empty (not told): there is no such entry, or no scan has come to it.
[[nodiscard]] std::optional<std::int64_t> notedOffset(const Plot3DOffsets& offsets,
                                                      std::int64_t entry);

} // namespace quorvia::quorutildataio
