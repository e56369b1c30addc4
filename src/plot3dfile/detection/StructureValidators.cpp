#include "plot3dfile/detection/StructureValidators.h"

#include <cstddef>
#include <string>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

namespace {

bool refuse(const std::string& text) {
    QuorUtilDialogErrMsg(text.c_str());
    return false;
}

/// Not so if `b` has no such grid: what stands behind its grids are leftovers of other trials.
bool hasSameGrid(const Plot3DFile_s& a, const Plot3DFile_s& b, std::int32_t gridIndex) {
    if (gridIndex >= b.numGrids)
        return false;
    const Plot3DGridDims_s& dims = a.gridDims[static_cast<std::size_t>(gridIndex)];
    const Plot3DGridDims_s& other = b.gridDims[static_cast<std::size_t>(gridIndex)];
    return a.dataStructure == Plot3DDataStructure_Unstructured ? dims.i == other.i : dims == other;
}

} // namespace

Plot3DFileStructureValidatorAbstract::Plot3DFileStructureValidatorAbstract(
    const Plot3DFile_s& theFirstFile, const Plot3DLoadOptions_s& options)
    : firstFile(&theFirstFile), uniformGrids(hasUniformGrids(options)) {}

bool Plot3DFileStructureValidatorAbstract::checkDataStructure(const Plot3DFile_s& file) const {
    return firstFile->dataStructure == file.dataStructure ||
           refuse("All files must have the same data structure.");
}

bool Plot3DFileStructureValidatorAbstract::checkGridCounts(const Plot3DFile_s& file) const {
    if (!uniformGrids)
        return true;
    if (firstFile->numGrids == file.numGrids)
        return compareFileDimensions(*firstFile, file);
    return refuse(file.fileName.str() + " does not have the same number of grids as file " +
                  firstFile->fileName.str() +
                  ". When loading uniform grids the files must have the same numbers of grids.");
}

Plot3DGridFileStructureValidator::Plot3DGridFileStructureValidator(
    const Plot3DFile_s& theFirstFile, const Plot3DLoadOptions_s& options)
    : Plot3DFileStructureValidatorAbstract(theFirstFile, options) {}

bool Plot3DGridFileStructureValidator::validate(const Plot3DFile_s& file) {
    if (!checkDataStructure(file) || !checkGridCounts(file))
        return false;
    return file.numVars == coordinateCount(firstFile->dataStructure) ||
           refuse("Grid file does not have the right number of variables.");
}

Plot3DNonGridFileStructureValidator::Plot3DNonGridFileStructureValidator(
    const Plot3DFile_s& theFirstFile, const Plot3DLoadOptions_s& options)
    : Plot3DFileStructureValidatorAbstract(theFirstFile, options) {}

bool Plot3DNonGridFileStructureValidator::validate(const Plot3DFile_s& file) {
    const bool isFunctionAmongSolutions =
        firstFile->style != file.style &&
        (firstFile->style == Plot3DStyle_Function || file.style == Plot3DStyle_Function);
    if (isFunctionAmongSolutions)
        return refuse("There are Solution Files mixed up with Function Files. Please load them "
                      "separately.");
    if (!checkDataStructure(file) || !checkGridCounts(file))
        return false;
    const std::string kind = file.style == Plot3DStyle_Function ? "Function " : "Solution ";
    return file.numVars == firstFile->numVars ||
           refuse(kind + "Files do not each have the same number of variables.");
}

bool compareFileDimensions(const Plot3DFile_s& a, const Plot3DFile_s& b) {
    for (std::int32_t gridIndex = 0; gridIndex < a.numGrids; ++gridIndex) {
        // The message counts grids from 0, unlike the host its zones; users know it so.
        if (!hasSameGrid(a, b, gridIndex))
            return refuse("Grid " + std::to_string(gridIndex) + " in file " + b.fileName.str() +
                          " does not have the same dimensions as the corresponding grid in the "
                          "previous datafile.");
    }
    return true;
}

} // namespace quorvia::quorutildataio
