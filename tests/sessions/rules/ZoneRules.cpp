// Zones: their sizes, names and strands, and how later time steps hang on the first.
// docs/time-series.md
#include <fmt/core.h>

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

/// Grids of equal sizes take the strands of their kind in turn, step after step.
class Strands {
public:
    Strands(std::int32_t first, bool isNewEachTime) : next_(first), isNewEachTime_(isNewEachTime) {}

    /// What the last step did not go on with has ended.
    void beginStep() {
        std::vector<Entry_s> kept;
        for (Entry_s entry : entries_)
            if (entry.isUsed) {
                entry.isUsed = false;
                kept.push_back(entry);
            }
        entries_ = kept;
    }
    std::int32_t take(const GridDims_s& dims) {
        if (isNewEachTime_)
            return next_++;
        for (Entry_s& entry : entries_)
            if (!entry.isUsed && entry.dims.i == dims.i && entry.dims.j == dims.j &&
                entry.dims.k == dims.k) {
                entry.isUsed = true;
                return entry.strand;
            }
        entries_.push_back({dims, next_, true});
        return next_++;
    }

private:
    struct Entry_s {
        GridDims_s dims;
        std::int32_t strand;
        bool isUsed;
    };
    std::vector<Entry_s> entries_;
    std::int32_t next_;
    bool isNewEachTime_;
};

Strands strandsOf(const LoadRun_s& load, const DataSet_s& dataSet) {
    const Load_s& options = load.options;
    const bool goesOn = options.append && options.assignsStrands && !options.addsToStrands;
    const bool isNewEachTime =
        options.newStrandEachStep && !options.addsToStrands && !load.isUniform();
    return {1 + (goesOn ? dataSet.highestStrand() : 0), isNewEachTime};
}

void setSizes(Zone_s& zone, const FileSet_s& set, std::int32_t grid, const LoadRun_s& load,
              const Zone_s* shared) {
    const FileModel_s& file = set.leading();
    const GridDims_s& dims = file.grids[static_cast<std::size_t>(grid)];
    if (layoutAsRead(file, load) != Layout_e::Unstructured) {
        const Selection_s points = selectionOf(file, grid, load);
        zone.i = static_cast<std::int64_t>(points.i.size());
        zone.j = static_cast<std::int64_t>(points.j.size());
        zone.k = static_cast<std::int64_t>(points.k.size());
        return;
    }
    zone.i = dims.i;
    zone.j = set.grid == nullptr ? shared->j : dims.j < 1 ? dims.k : dims.j;
    zone.k = set.grid == nullptr ? shared->k : dims.j < 1 ? 4 : 3;
    zone.type = zone.k == 3 ? 1 : 3;
}

bool sharesConnectivity(const LoadRun_s& load, std::size_t step) {
    if (load.grids.size() > 1)
        return false;
    return !load.grids.empty() || !load.options.append ? step > 0 : true;
}

Zone_s makeZone(const FileSet_s& set, std::int32_t grid, const LoadRun_s& load,
                ExpectedHost_s& host, const Zone_s* shared, bool sharesNodes) {
    Zone_s zone;
    zone.id = ++host.lastId;
    zone.name = zoneName(set, grid);
    setSizes(zone, set, grid, load, shared);
    if (zone.type != 0 && sharesNodes && host.isSharingAllowed)
        zone.nodes = shared->nodes;
    for (std::int32_t index = 0; index < host.dataSet->variableCount(); ++index) {
        const bool isIBlank = load.hasIBlank && index == load.coordinates;
        const bool isOfGrid = index < load.firstSolutionVariable() - 1;
        if (set.grid == nullptr && isOfGrid) // as in the zone whose grid this one has
            zone.fields.push_back({shared->fields[static_cast<std::size_t>(index)].type, nullptr});
        else
            zone.fields.push_back({isIBlank              ? integerType
                                   : set.isDouble(index) ? doubleType
                                                         : singleType,
                                   nullptr});
    }
    return zone;
}

/// The time of a solution is that of its name, if the load asks for it, or else its own.
void setTimes(const FileModel_s& file, LoadRun_s& load, DataSet_s& dataSet,
              std::int32_t firstZone) {
    const auto named = load.namedTimes.find(&file);
    const bool isNamed = named != load.namedTimes.end();
    if (file.isFunction() && load.namedTimes.empty())
        return;
    if (file.isFunction() && !isNamed)
        throw Refusal("functions beside solutions whose names have times");
    const double time = isNamed ? named->second : file.time;
    for (std::int32_t s = 0; s < load.selectedGrids(file); ++s) {
        if (firstZone + s > dataSet.zoneCount())
            break;
        dataSet.zone(firstZone + s).time = time;
        load.fileTimes[&file] = time;
    }
}

void setStep(std::size_t step, LoadRun_s& load, ExpectedHost_s& host, std::int32_t zoneBase,
             std::int32_t firstZone) {
    const FileSet_s& set = load.sets[step];
    DataSet_s& dataSet = *host.dataSet;
    const std::int32_t count = load.selectedGrids(set.leading());
    if (set.grid != nullptr) {
        if (step > 0 && load.grids.size() == 1) {
            shareGrid(load, host, dataSet, count, zoneBase, firstZone);
        } else {
            setFields(*set.grid, load, dataSet, firstZone, 1);
            const bool isTakenOver = step > 0 && load.isUniform() && load.options.sharesStructure;
            for (std::int32_t s = 0; isTakenOver && s < count; ++s)
                dataSet.zone(firstZone + s).nodes = nullptr; // only values are taken over
        }
    }
    if (set.solution != nullptr) {
        if (set.grid == nullptr && load.isUniform() && (step > 0 || load.options.append))
            shareGrid(load, host, dataSet, count, zoneBase, firstZone);
        setTimes(*set.solution, load, dataSet, firstZone);
        setFields(*set.solution, load, dataSet, firstZone, load.firstSolutionVariable());
    }
    std::int32_t variable = load.firstSolutionVariable() + load.solutionVariables;
    for (const FileModel_s* file : set.functions) {
        setTimes(*file, load, dataSet, firstZone);
        setFields(*file, load, dataSet, firstZone, variable);
        variable += file->functionCount;
    }
}

} // namespace

std::int32_t DataSet_s::highestStrand() const {
    std::int32_t highest = 0;
    for (const Zone_s& zone : zones)
        highest = std::max(highest, zone.strand);
    return highest;
}

std::string zoneName(const FileSet_s& set, std::int32_t grid) {
    return fmt::format("{}:{}", set.naming().name, grid + 1);
}

// The zones that a solution goes onto; the surplus goes.
void keepFirstStep(const LoadRun_s& load, DataSet_s& dataSet) {
    dataSet.zones.resize(static_cast<std::size_t>(load.zonesPerStep));
    const FileSet_s& set = load.sets.front();
    std::int64_t zone = 1;
    for (std::int32_t grid = 0; grid < set.leading().gridCount(); ++grid)
        if (load.selects(grid))
            dataSet.zone(zone++).name = zoneName(set, grid);
}

void addTimeSteps(LoadRun_s& load, ExpectedHost_s& host, std::vector<std::int32_t>& parents) {
    DataSet_s& dataSet = *host.dataSet;
    const bool keepsFirst = load.keepsFirstStep;
    const std::int32_t zoneBase =
        load.grids.empty() ? load.oldZones - load.zonesPerStep + 1 : load.oldZones + 1;
    std::int32_t firstZone = keepsFirst ? 1 : load.options.append ? load.oldZones + 1 : 1;
    Strands strands = strandsOf(load, dataSet);
    std::int32_t runningGrid = 0;
    parents.assign(dataSet.zones.size(), 0);
    for (std::size_t step = 0; step < load.sets.size(); ++step) {
        const FileSet_s& set = load.sets[step];
        strands.beginStep();
        std::int32_t s = 0;
        for (std::int32_t grid = 0; grid < set.leading().gridCount(); ++grid) {
            ++runningGrid;
            if (!load.selects(grid))
                continue;
            const std::int32_t strand =
                load.givesStrands
                    ? strands.take(set.leading().grids[static_cast<std::size_t>(grid)])
                    : 0;
            const std::int32_t share = zoneBase + s++;
            if (step == 0 && keepsFirst) {
                if (load.options.append && load.givesStrands)
                    dataSet.zone(grid + 1).strand = strand;
                continue;
            }
            const Zone_s* shared = share <= dataSet.zoneCount() ? &dataSet.zone(share) : nullptr;
            dataSet.zones.push_back(
                makeZone(set, grid, load, host, shared, sharesConnectivity(load, step)));
            dataSet.zones.back().strand = strand;
            parents.push_back(runningGrid);
        }
        setStep(step, load, host, zoneBase, firstZone);
        firstZone += s;
    }
}

} // namespace quorvia::sessions
