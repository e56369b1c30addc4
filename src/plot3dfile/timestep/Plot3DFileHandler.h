// One time step of a load: the grid file, solution file and function files that together make its
// zones. The rest of the system asks the step and does not care which file answers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// A value: a copy has the same files, which are borrowed from the load.
class Plot3DFileHandler {
public:
    /// The grid and solution file may be null, the list empty.
    Plot3DFileHandler(Plot3DFile_s* gridFile, Plot3DFile_s* solutionFile,
                      std::vector<Plot3DFile_s*> functionFiles);
    Plot3DFileHandler(const Plot3DFileHandler&) = default;
    Plot3DFileHandler& operator=(const Plot3DFileHandler&) = default;
    virtual ~Plot3DFileHandler() = default;

    /// The first of grid, solution and function file answers.
    virtual Plot3DDataStructure_e getDataStructure() const;
    virtual std::int32_t getNumGrids() const;
    /// The solution file's, else the first function file's, else unknown.
    virtual Plot3DStyle_e getStyle() const;
    virtual std::int32_t getNumSpecies() const;
    /// Precision of a data-set variable, `varIndex` from 0, the grid file's first. Not to be called
    /// on a handler with neither grid nor solution file.
    virtual bool isVarDoublePrecision(std::int32_t varIndex) const;
    /// Of a grid, counted from 0. Function files are not asked; all zero if there is no other.
    virtual Plot3DGridDims_s getGridDims(std::int32_t gridIndex) const;
    virtual bool hasGridFile() const;
    virtual bool hasSolutionFile() const;
    virtual bool hasFunctionFiles() const;
    /// The solution file's, else the first function file's. With only a grid file 0, 1, 2, ... on
    /// successive calls.
    virtual double getSolutionTime();
    /// Name of the zone of a grid, counted from 0: a file's name, ":" and the grid's number from 1.
    virtual std::string getZoneName(std::int32_t gridIndex) const;
    virtual std::string getGridFileName() const;
    virtual std::string getSolutionFileName() const;

    /// The file that answers for the structure; null if there is none at all.
    const Plot3DFile_s* structureFile() const;

    Plot3DFile_s* gridFile;
    Plot3DFile_s* solutionFile;
    std::vector<Plot3DFile_s*> functionFiles;
    std::int32_t fallbackTimeStep = 0;

private:
    const Plot3DFile_s* valueFile() const; // of solution and first function file; may be null
};

} // namespace quorvia::quorutildataio
