#include "sessions/rules/SessionRules.h"

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

void require(bool holds, const char* why) {
    if (!holds)
        throw Refusal(why);
}

LoadRun_s begin(const Load_s& asked, const std::vector<FileModel_s>& files) {
    LoadRun_s load;
    load.options = asked;
    for (const std::size_t place : asked.grids)
        load.grids.push_back(&files[place]);
    for (const std::size_t place : asked.solutions)
        load.solutions.push_back(&files[place]);
    for (const std::size_t place : asked.functions)
        load.functions.push_back(&files[place]);
    const bool hasBoundary = !load.grids.empty() && !load.grids.front()->boundaries.empty();
    // Nobody is asked at the dialog or behind a selection; instructions that name a file which is
    // not there cost a message.
    load.options.loadsBoundary =
        hasBoundary && (asked.road != Road_e::Instructions || asked.loadsBoundary);
    return load;
}

void settleShape(LoadRun_s& load) {
    const FileSet_s& first = load.sets.front();
    if (first.solution != nullptr)
        load.solutionVariables = first.solution->variableCount();
    if (!first.functions.empty())
        load.functionVariables = first.functions.front()->functionCount;
    if (first.grid != nullptr || first.solution != nullptr) {
        load.layout = layoutAsRead(first.leading(), load);
        load.coordinates = coordinateCount(load.layout);
    }
    if (first.grid != nullptr)
        load.hasIBlank = first.grid->hasIBlank;
}

void build(LoadRun_s& load, ExpectedHost_s& host) {
    const FileSet_s& first = load.sets.front();
    const std::vector<std::string> names = variableNames(load, host);
    const bool isFresh = !load.options.append && !load.grids.empty();
    if (isFresh)
        host.dataSet = DataSet_s{names, {}};
    DataSet_s& dataSet = *host.dataSet;
    const bool completesGrid = load.options.append && first.solution != nullptr &&
                               first.grid == nullptr && load.oldVariables <= 4;
    load.keepsFirstStep = load.replaces() || completesGrid;
    if (load.keepsFirstStep) {
        keepFirstStep(load, dataSet);
        load.oldZones = load.zonesPerStep;
    }
    if (load.oldZones > 0) {
        const std::int32_t index =
            first.grid != nullptr ? first.grid->variableCount() + (first.grid->hasIBlank ? 1 : 0)
                                  : 0;
        while (static_cast<std::size_t>(dataSet.variableCount()) < names.size())
            addVariable(dataSet, names[static_cast<std::size_t>(dataSet.variableCount())],
                        first.isDouble(index) ? doubleType : singleType);
    }
    std::vector<std::int32_t> parents;
    addTimeSteps(load, host, parents);
    mendEqualTimes(load, dataSet);
    if (load.options.loadsBoundary)
        addBoundaryZones(load, host, parents);
}

// What a load leaves that fails once it has begun to build.
void buildOrClear(LoadRun_s& load, ExpectedHost_s& host) {
    try {
        build(load, host);
    } catch (const Refusal& refusal) {
        if (load.keepsFirstStep)
            throw RefusalAmidst(refusal.what());
        if (!load.options.append) {
            host.dataSet.reset();
            host.plotType = noPlot;
        } else {
            host.dataSet->zones.resize(static_cast<std::size_t>(load.oldZones));
        }
        throw;
    }
}

void setPlotType(const LoadRun_s& load, ExpectedHost_s& host) {
    if (!load.options.append)
        host.plotType = load.coordinates == 1 ? plotXY : load.coordinates == 2 ? plot2D : plot3D;
}

class Applier {
public:
    const std::vector<FileModel_s>& files;
    ExpectedHost_s& host;

    void operator()(const Load_s& asked) const {
        LoadRun_s load = begin(asked, files);
        require(!asked.append || host.dataSet.has_value(), "nothing to append to");
        for (const Range_s& range : asked.ranges)
            require(!range.isTurned(), "a range whose end is below its start");
        settleStrandOptions(load);
        checkCounts(load);
        examineFiles(load);
        if (asked.road != Road_e::Instructions &&
            (load.solutions.empty() || !load.functions.empty()))
            load.options.timesFromNames = true;
        if (load.options.timesFromNames)
            takeTimesFromNames(load);
        checkGridCounts(load);
        pairFiles(load);
        checkDimensions(load);
        settleShape(load);
        const FileSet_s& first = load.sets.front();
        load.zonesPerStep = load.selectedGrids(first.leading());
        require(load.zonesPerStep > 0, "a grid set that selects no grid");
        const bool areFunctionsAlone = first.grid == nullptr && first.solution == nullptr;
        if (areFunctionsAlone) {
            appendFunctions(load, *host.dataSet);
            return;
        }
        checkCompatibility(load, host);
        const FileModel_s* styled = first.solution != nullptr  ? first.solution
                                    : !first.functions.empty() ? first.functions.front()
                                                               : nullptr;
        load.givesStrands = load.options.assignsStrands &&
                            !(styled != nullptr && styled->isFunction() && load.namedTimes.empty());
        buildOrClear(load, host);
        setPlotType(load, host);
    }
    void operator()(const DeleteZones_s& command) const {
        if (!host.dataSet)
            return;
        std::vector<Zone_s> kept;
        std::int64_t number = 0;
        for (const Zone_s& zone : host.dataSet->zones)
            if (command.zones.count(++number) == 0)
                kept.push_back(zone);
        host.dataSet->zones = kept;
    }
    void operator()(const Unload_s&) const {}
    void operator()(const AllowSharing_s& command) const {
        host.isSharingAllowed = command.isAllowed;
    }
};

} // namespace

Verdict_s apply(const Command& command, const std::vector<FileModel_s>& files,
                ExpectedHost_s& host) {
    try {
        std::visit(Applier{files, host}, command);
        return {};
    } catch (const RefusalAmidst& refusal) {
        return {Ending_e::RefusedAmidst, refusal.what()};
    } catch (const Refusal& refusal) {
        return {Ending_e::Refused, refusal.what()};
    }
}

} // namespace quorvia::sessions
