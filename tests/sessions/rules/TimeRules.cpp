// Solution times, and whether there are strands. docs/time-series.md
#include <set>

#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

// The number behind the last "_t" of the name, where the sessions' files have their times.
bool findTime(const std::string& name, double& time) {
    const std::size_t place = name.rfind("_t");
    if (place == std::string::npos)
        return false;
    time = std::stod(name.substr(place + 2));
    return true;
}

} // namespace

void settleStrandOptions(LoadRun_s& load) {
    Load_s& options = load.options;
    const bool isOfFunctions =
        options.isDescribed &&
        (load.solutions.empty() ? !load.functions.empty() : load.solutions.front()->isFunction());
    if (isOfFunctions && !options.timesFromNames)
        options.assignsStrands = false;
    if (!options.assignsStrands || !options.append)
        options.addsToStrands = false;
}

// Of all names, or of none.
void takeTimesFromNames(LoadRun_s& load) {
    load.namedTimes.clear();
    std::map<const FileModel_s*, double> times;
    for (const FileModel_s* file : load.solutions.empty() ? load.functions : load.solutions)
        if (double time = 0; findTime(file->name, time))
            times[file] = time;
        else
            return;
    load.namedTimes = times;
}

double timeOf(const FileSet_s& set, const LoadRun_s& load) {
    const FileModel_s* file = set.solution != nullptr  ? set.solution
                              : !set.functions.empty() ? set.functions.front()
                                                       : nullptr;
    const auto found = load.fileTimes.find(file);
    return found != load.fileTimes.end() ? found->second : 0;
}

void mendEqualTimes(LoadRun_s& load, DataSet_s& dataSet) {
    if (!load.options.assignsStrands || load.options.timesFromNames || load.solutions.empty())
        return;
    takeTimesFromNames(load);
    std::set<double> times;
    bool areEqual = false;
    for (const FileSet_s& set : load.sets)
        areEqual |= !times.insert(timeOf(set, load)).second;
    if (!areEqual)
        return;
    // Grids that are not loaded use up a number here too.
    std::int64_t zone = load.oldZones + 1;
    for (const FileSet_s& set : load.sets) {
        for (std::int32_t grid = 0; grid < set.leading().gridCount(); ++grid, ++zone) {
            if (!load.selects(grid))
                continue;
            const auto named = load.namedTimes.find(set.solution);
            if (named == load.namedTimes.end()) {
                if (!load.options.answersOk)
                    throw Refusal("equal times, and the user cancels");
                load.options.timesFromNames = true;
                return;
            }
            load.fileTimes[set.solution] = named->second;
            if (zone <= dataSet.zoneCount())
                dataSet.zone(zone).time = named->second;
        }
    }
}

} // namespace quorvia::sessions
