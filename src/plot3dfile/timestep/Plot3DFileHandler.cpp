#include "plot3dfile/timestep/Plot3DFileHandler.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace quorvia::quorutildataio {

namespace {

std::string nameOf(const Plot3DFile_s* file) {
    return file != nullptr ? file->fileName.str() : std::string();
}

/// The name behind its last separator. A separator in the first place is kept.
std::string baseName(const std::string& path) {
    const auto isSeparator = [](char letter) {
        return letter == '/' || letter == '\\' || letter == ':';
    };
    const auto name = std::find_if(path.rbegin(), path.rend(), isSeparator).base();
    return name - path.begin() <= 1 ? path : std::string(name, path.end());
}

Plot3DFile_s* firstOf(const std::vector<Plot3DFile_s*>& files) {
    return files.empty() ? nullptr : files.front();
}

} // namespace

Plot3DFileHandler::Plot3DFileHandler(Plot3DFile_s* theGridFile, Plot3DFile_s* theSolutionFile,
                                     std::vector<Plot3DFile_s*> theFunctionFiles)
    : gridFile(theGridFile), solutionFile(theSolutionFile),
      functionFiles(std::move(theFunctionFiles)) {}

Plot3DDataStructure_e Plot3DFileHandler::getDataStructure() const {
    const Plot3DFile_s* file = structureFile();
    return file != nullptr ? file->dataStructure : Plot3DDataStructure_Unknown;
}

std::int32_t Plot3DFileHandler::getNumGrids() const {
    const Plot3DFile_s* file = structureFile();
    return file != nullptr ? file->numGrids : 0;
}

Plot3DStyle_e Plot3DFileHandler::getStyle() const {
    const Plot3DFile_s* file = valueFile();
    return file != nullptr ? file->style : Plot3DStyle_Unknown;
}

std::int32_t Plot3DFileHandler::getNumSpecies() const {
    const Plot3DFile_s* file = hasSolutionFile() ? solutionFile : gridFile;
    return file != nullptr ? file->numSpecies : 0;
}

bool Plot3DFileHandler::isVarDoublePrecision(std::int32_t varIndex) const {
    if (!hasGridFile())
        return solutionFile->isDoublePrecision;
    if (!hasSolutionFile())
        return gridFile->isDoublePrecision;
    const std::int32_t gridVariables = gridFile->numVars + (gridFile->hasIBlank ? 1 : 0);
    return varIndex >= gridVariables ? solutionFile->isDoublePrecision
                                     : gridFile->isDoublePrecision;
}

Plot3DGridDims_s Plot3DFileHandler::getGridDims(std::int32_t gridIndex) const {
    const Plot3DFile_s* file = hasGridFile() ? gridFile : solutionFile;
    const auto index = static_cast<std::size_t>(gridIndex);
    if (file == nullptr || index >= file->gridDims.size())
        return {0, 0, 0};
    return file->gridDims[index];
}

bool Plot3DFileHandler::hasGridFile() const {
    return gridFile != nullptr;
}

bool Plot3DFileHandler::hasSolutionFile() const {
    return solutionFile != nullptr;
}

bool Plot3DFileHandler::hasFunctionFiles() const {
    return !functionFiles.empty();
}

double Plot3DFileHandler::getSolutionTime() {
    const Plot3DFile_s* file = valueFile();
    return file != nullptr ? file->solutionTime : static_cast<double>(fallbackTimeStep++);
}

std::string Plot3DFileHandler::getZoneName(std::int32_t gridIndex) const {
    const Plot3DFile_s* file = valueFile();
    const std::string name = baseName(nameOf(file != nullptr ? file : gridFile));
    return name + ":" + std::to_string(std::int64_t{gridIndex} + 1);
}

std::string Plot3DFileHandler::getGridFileName() const {
    return nameOf(gridFile);
}

std::string Plot3DFileHandler::getSolutionFileName() const {
    return nameOf(solutionFile);
}

const Plot3DFile_s* Plot3DFileHandler::valueFile() const {
    return hasSolutionFile() ? solutionFile : firstOf(functionFiles);
}

const Plot3DFile_s* Plot3DFileHandler::structureFile() const {
    return hasGridFile() ? gridFile : valueFile();
}

} // namespace quorvia::quorutildataio
