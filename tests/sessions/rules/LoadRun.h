// One load on its way through the rule book: the files as they are read, their time steps, and what
// the earlier rules have settled. The rules stand in the order in which they are asked.
#pragma once

#include <map>
#include <stdexcept>
#include <vector>

#include "sessions/Command.h"
#include "sessions/ExpectedDataSet.h"

namespace quorvia::sessions {

/// The load ends with a message. What the host holds by then stands.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Likewise, in the middle of a change of zones that were there before.
class RefusalAmidst : public Refusal {
public:
    using Refusal::Refusal;
};

/// Refuses the load where a rule does not hold.
inline void require(bool holds, const char* why) {
    if (!holds)
        throw Refusal(why);
}

/// The files of one time step.
struct FileSet_s {
    const FileModel_s* grid = nullptr;
    const FileModel_s* solution = nullptr;
    std::vector<const FileModel_s*> functions;

    /// The file that tells layout and number of grids.
    const FileModel_s& leading() const {
        return grid != nullptr ? *grid : solution != nullptr ? *solution : *functions.front();
    }
    /// The file that names the zones.
    const FileModel_s& naming() const {
        return solution != nullptr ? *solution : !functions.empty() ? *functions.front() : *grid;
    }
    /// Of the variable at this index, from 0, I-blank counted.
    bool isDouble(std::int32_t index) const;
};

struct LoadRun_s {
    Load_s options; ///< as the rules leave them
    std::vector<const FileModel_s*> grids, solutions, functions;
    std::vector<FileSet_s> sets;
    std::map<const FileModel_s*, double> namedTimes; ///< empty unless every name has one
    std::map<const FileModel_s*, double> fileTimes;  ///< those that the zones got

    Layout_e layout = Layout_e::ThreeDWhole; ///< if there is a grid or a solution
    std::int32_t coordinates = 0;
    std::int32_t solutionVariables = 0;
    std::int32_t functionVariables = 0; ///< of the first function file
    bool hasIBlank = false;
    std::int32_t zonesPerStep = 0;
    std::int32_t oldZones = 0;
    std::int32_t oldVariables = 0;
    bool keepsFirstStep = false; ///< the first time step goes onto zones that are there
    bool givesStrands = false;

    bool replaces() const { return !options.append && grids.empty(); }
    /// Whether all time steps have the structure of the first.
    bool isUniform() const { return options.isUniform || grids.size() == 1; }
    bool selects(std::int32_t grid) const { // from 0
        return options.gridSet.empty() || options.gridSet.count(grid + 1) != 0;
    }
    std::int32_t selectedGrids(const FileModel_s& file) const;
    std::int32_t firstSolutionVariable() const { return coordinates + (hasIBlank ? 1 : 0) + 1; }
};

/// How the file's layout is read: by trial the files beside an unstructured grid can't be told from
/// lines of points in 3-D.
Layout_e layoutAsRead(const FileModel_s& file, const LoadRun_s& load);

/// The indices, from 0, that the range takes of `count` points. The last is always among them.
std::vector<std::int32_t> indicesOf(const Range_s& range, std::int32_t count);

/// The indices in each direction that the load takes of the grid.
struct Selection_s {
    std::vector<std::int32_t> i, j, k;
    bool isSubset = false; ///< some direction has a start, an end or a skip of its own

    std::int64_t pointCount() const {
        return static_cast<std::int64_t>(i.size() * j.size() * k.size());
    }
};
Selection_s selectionOf(const FileModel_s& file, std::int32_t grid, const LoadRun_s& load);

// FileRules.cpp: which files go together. Throw Refusal.
void checkCounts(const LoadRun_s& load);
void examineFiles(LoadRun_s& load);
void checkGridCounts(const LoadRun_s& load);
void pairFiles(LoadRun_s& load);
void checkDimensions(const LoadRun_s& load);

// TimeRules.cpp
void settleStrandOptions(LoadRun_s& load);
void takeTimesFromNames(LoadRun_s& load);
double timeOf(const FileSet_s& set, const LoadRun_s& load);
/// The times in the names of a series whose own times are equal.
void mendEqualTimes(LoadRun_s& load, DataSet_s& dataSet);

// CompatibilityRules.cpp: whether the load may go onto what is there.
void checkCompatibility(LoadRun_s& load, const ExpectedHost_s& host);

// VariableRules.cpp
std::vector<std::string> variableNames(const LoadRun_s& load, const ExpectedHost_s& host);
/// For zones that are there; the fields stay empty.
void addVariable(DataSet_s& dataSet, const std::string& name, std::int32_t type);
/// Function files alone become variables of the zones that are there.
void appendFunctions(LoadRun_s& load, DataSet_s& dataSet);

// ZoneRules.cpp
/// Zones and fields of all time steps.
void addTimeSteps(LoadRun_s& load, ExpectedHost_s& host, std::vector<std::int32_t>& parents);
void keepFirstStep(const LoadRun_s& load, DataSet_s& dataSet);
std::string zoneName(const FileSet_s& set, std::int32_t grid);

// FieldRules.cpp
/// The fields of the file's selected grids, in zones from `firstZone` on. Throws Refusal.
void setFields(const FileModel_s& file, const LoadRun_s& load, DataSet_s& dataSet,
               std::int32_t firstZone, std::int32_t firstVariable);
/// The coordinates and I-blank of zones from `source` on for as many from `destination` on.
void shareGrid(const LoadRun_s& load, const ExpectedHost_s& host, DataSet_s& dataSet,
               std::int32_t count, std::int32_t source, std::int32_t destination);

// BoundaryRules.cpp: behind all zones. `parents`: for each zone the running number of its grid over
// all time steps, 0 for zones of other loads.
void addBoundaryZones(LoadRun_s& load, ExpectedHost_s& host,
                      const std::vector<std::int32_t>& parents);

} // namespace quorvia::sessions
