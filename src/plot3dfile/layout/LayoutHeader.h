// The header of a file: count of grids, dimensions of each grid, and what styles add to them.
// Shared by the layout parsers; what tells one layout from another is a LayoutRules_s.
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// What tells the layouts apart that may hold several grids.
struct LayoutRules_s {
    bool (*acceptsFile)(const Plot3DFile_s& file); // style and I-blank, ahead of any reading
    std::int32_t dimensionCount;                   // integers that tell the size of a grid
    bool lineHoldsGrid;                            // these stand in one record, or on one line
    std::int32_t gridVariables;
    std::int32_t solutionVariables; // of Classic and Swift
    bool (*acceptsDims)(const Plot3DFile_s& file, const Plot3DGridDims_s& dims);
    bool (*refuseDims)(Plot3DFile_s& file, const Plot3DGridDims_s& dims,
                       std::int32_t gridIndex);         // notes why; false always
    double (*pointCount)(const Plot3DGridDims_s& dims); // as a real: the product may pass 64 bits
};

/// The product of the dimensions, as a real.
double structuredPointCount(const Plot3DGridDims_s& dims);

/// Rewinds and reads the header of a 2-D, 3-D or unstructured file. True: it is plausible, its
/// counts stand in the record, and the stream stands behind it. False (not told): it is not. Throws
/// std::bad_alloc.
[[nodiscard]] bool readHeader(Plot3DFile_s& file, const LayoutRules_s& rules);

/// The same for a 1-D file. Leaves `numGrids` alone: see docs/detection.md. False (not told): it is
/// not plausible.
[[nodiscard]] bool read1DHeader(Plot3DFile_s& file);

/// Reads 1 or 2 integers that form a record, or a line, of their own. False (not told): there is no
/// such record.
[[nodiscard]] bool readIntegerRecord(Plot3DFile_s& file, std::int32_t count, std::int32_t* values);

/// Sets `numScalars` by the style; for Overflow reads `numVars` and `numSpecies` first. False (not
/// told): these can't be read.
[[nodiscard]] bool readScalarCount(Plot3DFile_s& file);

/// Stores the dimensions of one grid, growing the array as needed. False (not told): no
/// memory.
[[nodiscard]] bool storeGridDims(std::int32_t i, std::int32_t j, std::int32_t k,
                                 std::int32_t gridIndex, std::vector<Plot3DGridDims_s>& gridDims);

} // namespace quorvia::quorutildataio
