#include "plot3dfile/layout/DataSize.h"

#include <optional>

#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/layout/LayoutHeader.h"
#include "plot3dfile/layout/LayoutParsers.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"

namespace quorvia::quorutildataio {

namespace {

constexpr double sizeLimit = 2147483646.0; // points, or elements, of one grid in plain binary
constexpr std::int64_t elementBytes = 16;

// What stands once in a plain binary file that tells its species, beside its grids and scalars.
constexpr std::int64_t realsPerFileWithSpecies = 2;

bool isUnstructured(const Plot3DFile_s& file) {
    return file.dataStructure == Plot3DDataStructure_Unstructured;
}

std::int64_t scalarBytes(const Plot3DFile_s& file) {
    return hasScalars(file) ? realWidth(file) * file.numScalars : 0;
}

bool fitsText(Plot3DFile_s& file) {
    return skipReals(file, file.numScalars) && atRecordEnd(file);
}

bool isUnstructuredGridSane(const Plot3DGridDims_s& dims) {
    return dims.i > 0 && dims.j >= 0 && dims.k >= 0 &&
           static_cast<double>(dims.j) + dims.k < sizeLimit;
}

bool isStructuredGridSane(const Plot3DGridDims_s& dims) {
    return dims.i > 0 && dims.j > 0 && dims.k > 0 && structuredPointCount(dims) < sizeLimit;
}

/// Connectivity of a grid; 0 bytes beside an unstructured grid file.
std::int64_t connectivityBytes(const Plot3DFile_s& file, const Plot3DGridDims_s& dims) {
    if (!isUnstructured(file) || file.isSolutionOrFunction)
        return 0;
    return elementBytes * (std::int64_t{dims.j} + dims.k);
}

/// Adds the blocks of one grid. False: no such grid can be.
bool addGrid(const Plot3DFile_s& file, const Plot3DGridDims_s& dims, CheckedSize& total) {
    if (isUnstructured(file)) {
        if (!isUnstructuredGridSane(dims))
            return false;
        total.addProduct({file.numVars, realWidth(file), dims.i});
        total.addProduct({connectivityBytes(file, dims)});
    } else {
        if (!isStructuredGridSane(dims))
            return false;
        total.addProduct({file.numVars, realWidth(file), dims.i, dims.j, dims.k});
        if (file.hasIBlank)
            total.addProduct({integerWidth, dims.i, dims.j, dims.k});
    }
    total.addProduct({scalarBytes(file)});
    return true;
}

/// Every byte behind the header must be accounted for.
bool fitsBinary(const Plot3DFile_s& file) {
    if (file.numGrids > static_cast<std::int64_t>(file.gridDims.size()))
        return false; // only a 1-D trial, which takes over the count of an earlier one
    CheckedSize total;
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid)
        if (!addGrid(file, file.gridDims[static_cast<std::size_t>(grid)], total))
            return false;
    if (styleRulesOf(file).variableCount == VariableCount_e::OfFile)
        total.addProduct({realsPerFileWithSpecies, realWidth(file)});
    const std::optional<std::int64_t> expected = total.value();
    const std::int64_t present = file.fileSize - file.stream->tell();
    if (!expected)
        return false;
    return file.relaxedChecks ? *expected <= present : *expected == present;
}

bool fitsScalarRecord(const Plot3DFile_s& file) {
    if (styleRulesOf(file).hasSpecies) {
        // One of the scalars is an integer, which takes 4 bytes in double precision too.
        const std::int64_t integerSaving = realWidth(file) - integerWidth;
        return file.recordLength >= scalarBytes(file) - integerSaving;
    }
    return file.relaxedChecks ? file.recordLength >= scalarBytes(file)
                              : file.recordLength == scalarBytes(file);
}

/// Points of the first record of variables.
std::optional<std::int64_t> pointsOfRecord(const Plot3DFile_s& file, const Plot3DGridDims_s& dims) {
    CheckedSize points;
    if (isUnstructured(file))
        points.addProduct({dims.i});
    else if (file.dataStructure == Plot3DDataStructure_3DPlanes)
        points.addProduct({dims.i, dims.j});
    else
        points.addProduct({dims.i, dims.j, dims.k});
    return points.value();
}

std::optional<std::int64_t> bytesOfRecord(const Plot3DFile_s& file, const Plot3DGridDims_s& dims) {
    const std::optional<std::int64_t> points = pointsOfRecord(file, dims);
    if (!points)
        return std::nullopt;
    CheckedSize bytes(connectivityBytes(file, dims));
    bytes.addProduct({realWidth(file), file.numVars, *points});
    if (file.hasIBlank)
        bytes.addProduct({integerWidth, *points});
    return bytes.value();
}

/// Only the first grid's records are looked at: walking them all would read the whole file.
bool fitsFortran(Plot3DFile_s& file) {
    if (hasScalars(file) && !(nextRecord(file, false, nullptr) && fitsScalarRecord(file)))
        return false;
    const std::optional<std::int64_t> expected = bytesOfRecord(file, file.gridDims.front());
    if (!expected || !nextRecord(file, false, nullptr))
        return false;
    return file.relaxedChecks ? file.recordLength >= *expected : file.recordLength == *expected;
}

} // namespace

bool checkDataSize(Plot3DFile_s& file) {
    switch (file.encoding) {
    case Plot3DEncoding_Ascii:
        return fitsText(file);
    case Plot3DEncoding_FortranUnformatted:
        return fitsFortran(file);
    case Plot3DEncoding_Binary:
    case Plot3DEncoding_Unknown:
        break;
    }
    return fitsBinary(file);
}

} // namespace quorvia::quorutildataio
