#include "plot3dfile/layout/DataSize.h"

#include <limits>
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
    if (!skipReals(file, file.numScalars))
        return refuseReading(file, Plot3DMisfit_e::ScalarsMissing, file.numScalars);
    return atRecordEnd(file) || refuseReading(file, Plot3DMisfit_e::ScalarsLine, file.numScalars);
}

std::int64_t asInteger(double number) {
    constexpr double past64Bits = 9223372036854775808.0;
    return number < past64Bits ? static_cast<std::int64_t>(number)
                               : std::numeric_limits<std::int64_t>::max();
}

bool refuseGrid(Plot3DFile_s& file, const Plot3DGridDims_s& dims, std::int32_t gridIndex) {
    const double size =
        isUnstructured(file) ? static_cast<double>(dims.j) + dims.k : structuredPointCount(dims);
    return refuseReading(file, Plot3DMisfit_e::GridTooBig, asInteger(sizeLimit) - 1,
                         asInteger(size), gridIndex);
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
bool fitsBinary(Plot3DFile_s& file) {
    if (file.numGrids > static_cast<std::int64_t>(file.gridDims.size())) {
        // Only a 1-D trial, which takes over the count of an earlier one.
        return refuseReading(file, Plot3DMisfit_e::GridCountUnknown, 1, file.numGrids);
    }
    CheckedSize total;
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid) {
        const Plot3DGridDims_s& dims = file.gridDims[static_cast<std::size_t>(grid)];
        if (!addGrid(file, dims, total))
            return refuseGrid(file, dims, grid);
    }
    if (styleRulesOf(file).variableCount == VariableCount_e::OfFile)
        total.addProduct({realsPerFileWithSpecies, realWidth(file)});
    const std::optional<std::int64_t> expected = total.value();
    const std::int64_t present = file.fileSize - file.stream->tell();
    if (!expected)
        return refuseReading(file, Plot3DMisfit_e::SizePasses64Bits);
    return (file.relaxedChecks ? *expected <= present : *expected == present) ||
           refuseReading(file, Plot3DMisfit_e::DataSize, *expected, present);
}

bool fitsRecordLength(const Plot3DFile_s& file, std::int64_t expected, bool mayBeLonger) {
    return mayBeLonger ? file.recordLength >= expected : file.recordLength == expected;
}

bool fitsScalarRecord(Plot3DFile_s& file) {
    if (!nextRecord(file, false, nullptr))
        return refuseReading(file, Plot3DMisfit_e::ScalarsMissing, file.numScalars);
    const bool hasSpecies = styleRulesOf(file).hasSpecies;
    // One of its scalars is an integer, which takes 4 bytes in double precision too.
    const std::int64_t integerSaving = hasSpecies ? realWidth(file) - integerWidth : 0;
    const std::int64_t expected = scalarBytes(file) - integerSaving;
    return fitsRecordLength(file, expected, hasSpecies || file.relaxedChecks) ||
           refuseReading(file, Plot3DMisfit_e::ScalarsRecord, expected, file.recordLength);
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
    if (hasScalars(file) && !fitsScalarRecord(file))
        return false;
    const std::optional<std::int64_t> expected = bytesOfRecord(file, file.gridDims.front());
    if (!expected)
        return refuseReading(file, Plot3DMisfit_e::SizePasses64Bits);
    if (!nextRecord(file, false, nullptr))
        return refuseReading(file, Plot3DMisfit_e::DataMissing, *expected);
    return fitsRecordLength(file, *expected, file.relaxedChecks) ||
           refuseReading(file, Plot3DMisfit_e::DataRecord, *expected, file.recordLength);
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
