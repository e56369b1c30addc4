#include "plot3dfile/layout/LayoutHeader.h"

#include <algorithm>
#include <limits>
#include <new>

#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/layout/StyleRules.h"
#include "plot3dfile/numbers/FortranRecords.h"
#include "plot3dfile/numbers/NumberStream.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {

namespace {

constexpr double leastBytesPerGrid = 16.0;
constexpr double pointsPast64Bits = 9223372036854775808.0;
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();

constexpr std::size_t firstGridDimsLength = 1000;
constexpr std::size_t longestGridDimsGrowth = 100000;

constexpr std::int32_t solutionScalars1D = 4;
constexpr std::int32_t solutionVariables1D = 3;

/// Where the data would end if each point so far took one byte.
bool addPoints(Plot3DFile_s& file, std::int64_t pointCount, std::int32_t gridIndex,
               std::int64_t& runningPosition) {
    CheckedSize sum(runningPosition);
    sum.addProduct({pointCount});
    if (!sum.value() || *sum.value() < 1 || *sum.value() >= file.fileSize)
        return refuseReading(file, Plot3DMisfit_e::GridsPassEnd, sum.value().value_or(largest),
                             file.fileSize, gridIndex);
    runningPosition = *sum.value();
    return true;
}

std::int64_t mostGrids(const Plot3DFile_s& file) {
    return std::max<std::int64_t>(file.fileSize - 1, 0) /
           static_cast<std::int64_t>(leastBytesPerGrid);
}

/// A repeat token stands for billions in a few characters, also where it is left open how long the
/// file should be. A size that the system does not tell refuses nothing.
bool isBlownUp(const Plot3DFile_s& file) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return false;
    const std::int64_t byteCount = file.stream->size();
    return byteCount >= 0 && file.numGrids > byteCount;
}

bool readGridCount(Plot3DFile_s& file) {
    file.numGrids = 1;
    if (file.isMultiGrid && !readIntegerRecord(file, 1, &file.numGrids))
        return false;
    // A wrong byte order makes counts in the billions: they must end here, ahead of any long loop.
    if (file.numGrids > 0 &&
        static_cast<double>(file.fileSize) > file.numGrids * leastBytesPerGrid && !isBlownUp(file))
        return true;
    return refuseReading(file, Plot3DMisfit_e::GridCount, mostGrids(file), file.numGrids);
}

void setVariableCount(Plot3DFile_s& file, const LayoutRules_s& rules) {
    if (!file.isSolutionOrFunction)
        file.numVars = rules.gridVariables;
    else if (styleRulesOf(file).variableCount == VariableCount_e::OfLayout)
        file.numVars = rules.solutionVariables;
}

bool readDims(Plot3DFile_s& file, const LayoutRules_s& rules, std::int32_t gridIndex,
              Plot3DGridDims_s& dims) {
    const bool lineMustGoOn =
        rules.lineHoldsGrid && file.encoding != Plot3DEncoding_Binary && !file.relaxedChecks;
    std::int32_t values[3] = {1, 1, 1};
    for (std::int32_t index = 0; index < rules.dimensionCount; ++index) {
        if (index > 0 && lineMustGoOn && atRecordEnd(file))
            return refuseReading(file, Plot3DMisfit_e::DimensionsLineEnds, rules.dimensionCount,
                                 index, gridIndex);
        if (!readInteger(file, values[index]))
            return refuseReading(file, Plot3DMisfit_e::DimensionsMissing, rules.dimensionCount,
                                 index, gridIndex);
    }
    dims = {values[0], values[1], values[2]};
    return true;
}

/// All grids of a function file must have the same number of variables.
bool readFunctionVariableCount(Plot3DFile_s& file, std::int32_t gridIndex) {
    std::int32_t variableCount = 0;
    if (!readInteger(file, variableCount))
        return refuseReading(file, Plot3DMisfit_e::VariablesMissing, 0, 0, gridIndex);
    if (gridIndex == 0)
        file.numVars = variableCount;
    return variableCount == file.numVars || refuseReading(file, Plot3DMisfit_e::VariablesDiffer,
                                                          file.numVars, variableCount, gridIndex);
}

/// Throws where there is no memory, which is no misfit: the next trial would be believed instead.
void storeDims(Plot3DFile_s& file, const Plot3DGridDims_s& dims, std::int32_t gridIndex) {
    if (!storeGridDims(dims.i, dims.j, dims.k, gridIndex, file.gridDims))
        throw std::bad_alloc();
}

bool readGridHeader(Plot3DFile_s& file, const LayoutRules_s& rules, std::int32_t gridIndex,
                    std::int64_t& runningPosition) {
    Plot3DGridDims_s dims{};
    if (!readDims(file, rules, gridIndex, dims))
        return false;
    if (!rules.acceptsDims(file, dims))
        return rules.refuseDims(file, dims, gridIndex);
    const double pointCount = rules.pointCount(dims);
    if (pointCount >= pointsPast64Bits)
        return refuseReading(file, Plot3DMisfit_e::GridsPassEnd, largest, file.fileSize, gridIndex);
    if (!addPoints(file, static_cast<std::int64_t>(pointCount), gridIndex, runningPosition))
        return false;
    storeDims(file, dims, gridIndex);
    return styleRulesOf(file).variableCount != VariableCount_e::OfEachGrid ||
           readFunctionVariableCount(file, gridIndex);
}

bool headerEnds(Plot3DFile_s& file) {
    if (file.encoding == Plot3DEncoding_Binary || atRecordEnd(file))
        return true;
    const std::int64_t end = file.nextRecordStart - static_cast<std::int64_t>(file.markerSize);
    return refuseReading(file, Plot3DMisfit_e::HeaderGoesOn, end, file.stream->tell());
}

bool readIntegerLine(Plot3DFile_s& file, std::int32_t count, std::int32_t* values) {
    for (std::int32_t index = 0; index < count; ++index) {
        if (atRecordEnd(file))
            return refuseReading(file, Plot3DMisfit_e::IntegersLineEnds, count, index);
        if (!readInteger(file, values[index]))
            return refuseReading(file, Plot3DMisfit_e::IntegersMissing, count, index);
    }
    return atRecordEnd(file) || refuseReading(file, Plot3DMisfit_e::IntegersLineGoesOn, count);
}

bool hasLengthOfIntegers(Plot3DFile_s& file, std::int32_t count) {
    if (file.encoding != Plot3DEncoding_FortranUnformatted)
        return true;
    const std::int64_t expected = integerWidth * count;
    if (file.relaxedChecks ? file.recordLength >= expected : file.recordLength == expected)
        return true;
    return refuseReading(file, Plot3DMisfit_e::IntegersRecord, expected, file.recordLength);
}

} // namespace

double structuredPointCount(const Plot3DGridDims_s& dims) {
    return static_cast<double>(dims.j) * dims.i * dims.k;
}

bool readIntegerRecord(Plot3DFile_s& file, std::int32_t count, std::int32_t* values) {
    if (!nextRecord(file, false, nullptr))
        return refuseReading(file, Plot3DMisfit_e::IntegersMissing, count);
    if (file.encoding == Plot3DEncoding_Ascii)
        return readIntegerLine(file, count, values);
    if (!hasLengthOfIntegers(file, count))
        return false;
    constexpr bool store = true;
    return (readIntegerBlock(*file.stream, file, store, count, values) && atRecordEnd(file)) ||
           refuseReading(file, Plot3DMisfit_e::IntegersMissing, count);
}

bool readScalarCount(Plot3DFile_s& file) {
    const StyleRules_s& style = styleRulesOf(file);
    const bool isRead = style.variableCount != VariableCount_e::OfFile ||
                        (readInteger(file, file.numVars) && readInteger(file, file.numSpecies));
    file.numScalars = scalarCount(style, file.numSpecies);
    return isRead || refuseReading(file, Plot3DMisfit_e::SpeciesMissing);
}

bool storeGridDims(std::int32_t i, std::int32_t j, std::int32_t k, std::int32_t gridIndex,
                   std::vector<Plot3DGridDims_s>& gridDims) {
    const auto index = static_cast<std::size_t>(gridIndex);
    try {
        while (index >= gridDims.size()) {
            const std::size_t length = gridDims.size();
            gridDims.resize(length == 0 ? firstGridDimsLength
                                        : length + std::min(length, longestGridDimsGrowth));
        }
    } catch (const std::bad_alloc&) {
        return false;
    }
    gridDims[index] = {i, j, k};
    return true;
}

bool readHeader(Plot3DFile_s& file, const LayoutRules_s& rules) {
    rewindPlot3DFile(file);
    const bool hasCount = readGridCount(file);
    const bool hasDimensions = hasCount && nextRecord(file, false, nullptr);
    setVariableCount(file, rules);
    if (!hasDimensions)
        return hasCount &&
               refuseReading(file, Plot3DMisfit_e::DimensionsMissing, rules.dimensionCount);
    std::int64_t runningPosition = file.stream->tell();
    for (std::int32_t gridIndex = 0; gridIndex < file.numGrids; ++gridIndex)
        if (!readGridHeader(file, rules, gridIndex, runningPosition))
            return false;
    return (!file.isSolutionOrFunction || readScalarCount(file)) && headerEnds(file);
}

bool read1DHeader(Plot3DFile_s& file) {
    rewindPlot3DFile(file);
    std::int32_t values[2] = {0, 0}; // points, and maybe the number of variables
    const bool countsVariables = styleRulesOf(file).variableCount == VariableCount_e::OfEachGrid;
    if (!readIntegerRecord(file, countsVariables ? 2 : 1, values))
        return false;
    std::int64_t runningPosition = file.stream->tell();
    const bool fits = addPoints(file, values[0], 0, runningPosition);
    if (fits)
        storeDims(file, {values[0], 1, 1}, 0);
    file.numScalars = 0;
    file.numVars = 1;
    if (countsVariables) {
        file.numVars = values[1];
    } else if (file.isSolutionOrFunction) {
        file.numScalars = solutionScalars1D;
        file.numVars = solutionVariables1D;
    }
    if (fits && values[0] < 1)
        return refuseReading(file, Plot3DMisfit_e::Dimension, 1, values[0]);
    return fits && headerEnds(file);
}

} // namespace quorvia::quorutildataio
