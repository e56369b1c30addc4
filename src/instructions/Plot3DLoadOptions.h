// The one record that says everything about one load: which files, how they are organised, which
// part of each grid is wanted, how the zones are tied into strands. Filled by the instruction
// parser or the dialog, changed by the load, written back as instructions. See
// docs/instructions.md.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "instructions/Plot3DStructure.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// A selection along one index direction, 1-based. `end` 0 is the last index; the end of a range is
/// always selected, also when the stride does not land on it.
struct Plot3DIndexRange_s {
    std::int32_t start;
    std::int32_t end;
    std::int32_t skip;
};

/// The constructor makes the lists, strings and the map, and leaves all else undefined: a record is
/// not usable until setLoadOptionDefaults has run. A copy shares the `gridSet` handle, so exactly
/// one of the two may be released; destroying a record does not release it.
struct Plot3DLoadOptions_s {
    Plot3DLoadOptions_s() {} // leaves flags and ranges undefined on purpose, see above

    bool append;
    bool hasGridFiles;
    bool hasSolutionFiles;
    bool hasNameFile;
    bool loadBoundary;
    std::vector<std::string> gridFiles;
    std::vector<std::string> solutionFiles;
    std::vector<std::string> functionFiles;
    std::string nameFile;
    std::string boundaryFile; // set by findBoundaryFile, never read from an instruction
    Plot3DIndexRange_s iRange;
    Plot3DIndexRange_s jRange;
    Plot3DIndexRange_s kRange;
    QuorSetHandle gridSet; // grid numbers from 1; null or empty selects all grids
    bool autoDetect;
    Plot3DStyle_e style;
    bool isMultiGrid;
    Plot3DDataStructure_e dataStructure;
    bool solutionsShareStructure;
    bool asciiIsDouble;
    bool asciiHasIBlank;
    bool assignStrandIds;          // the working value, which the load may clear
    bool assignStrandIdsRequested; // as it was asked for; what the instructions repeat
    bool addToExistingStrands;
    bool uniformGridStructure;
    bool assignNewStrandIdForEachTimeStep;
    bool extractTimeFromSolFileNames;
    std::map<std::string, double> solutionTimes; // file path to solution time
};

/// Stores every default, empties the three lists and the map. Leaves `nameFile` and `boundaryFile`,
/// and stores null in `gridSet` without releasing what was there.
void setLoadOptionDefaults(Plot3DLoadOptions_s& options);

/// Empties the three lists and gives `gridSet` back to the host. Twice in a row is harmless.
void releaseLoadOptions(Plot3DLoadOptions_s& options);

/// The range with `start` and `end` made absolute for a dimension of `n`: above `n` becomes `n`,
/// below -`n` becomes 1, below 1 has `n` added (0 is the last index, -1 the one before it).
Plot3DIndexRange_s resolveIndexRange(Plot3DIndexRange_s range, std::int32_t n);

/// Whether `gridSet` selects the grid with this number, counted from 1: null and empty select all.
bool isGridSelected(QuorSetHandle gridSet, std::int64_t gridNumber);

/// Whether all grid files of the load have one structure: the option says so, or there is exactly
/// one grid file.
bool hasUniformGrids(const Plot3DLoadOptions_s& options);

/// Whether the load has exactly one grid file.
bool hasSingleGridFile(const Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
