#include "loader/SolutionTimes.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <new>
#include <string>
#include <vector>

#include "dataset/zones/ZoneCreation.h"
#include "plot3dfile/layout/StyleRules.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

namespace {

HostStringList copyToHost(const std::vector<std::string>& names) {
    HostStringList list(QuorUtilStringListAlloc());
    if (!list)
        throw std::bad_alloc();
    for (const std::string& name : names)
        if (!QuorUtilStringListAppendString(list.get(), name.c_str()))
            throw std::bad_alloc();
    return list;
}

/// A time that is no number equals none, and minus zero equals zero.
bool hasEqualTimes(std::vector<Plot3DFileHandler>& fileSets) {
    std::vector<double> times;
    times.reserve(fileSets.size());
    for (Plot3DFileHandler& fileSet : fileSets) {
        const double time = fileSet.getSolutionTime();
        if (!std::isnan(time))
            times.push_back(time);
    }
    std::sort(times.begin(), times.end());
    return std::adjacent_find(times.begin(), times.end()) != times.end();
}

} // namespace

void normaliseStrandOptions(Plot3DLoadOptions_s& options) {
    // Function files hold no time: without one from their names no time step is told from another.
    const bool timesFromNames = options.extractTimeFromSolFileNames &&
                                !(options.solutionFiles.empty() && options.functionFiles.empty());
    if (styleRules(options.style).scalars.empty() && !timesFromNames)
        options.assignStrandIds = false;
    if (!options.assignStrandIds || !options.append)
        options.addToExistingStrands = false;
}

void extractSolutionTimes(Plot3DLoadOptions_s& options) {
    const std::vector<std::string>& names =
        options.solutionFiles.empty() ? options.functionFiles : options.solutionFiles;
    HostStringList list = copyToHost(names);
    const auto times = HostArray<double>::allocate(static_cast<std::int64_t>(names.size()),
                                                   "Extract Solution Times From File Names");
    if (!times)
        throw std::bad_alloc();
    constexpr bool showErrors = false;
    const bool found = QuorUtilExtractTimesFromFileNames(list.get(), times.data(), showErrors);
    list.reset();

    options.solutionTimes.clear();
    if (!found)
        return;
    std::int64_t index = 0;
    for (const std::string& name : names)
        options.solutionTimes.emplace_hint(options.solutionTimes.end(), name,
                                           times[index++]); // a name's first time stays
}

bool checkSolutionTimes(std::int32_t firstZone, Plot3DLoadOptions_s& options,
                        std::vector<Plot3DFileHandler>& fileSets) {
    if (options.extractTimeFromSolFileNames || options.solutionFiles.empty())
        return true; // settled before the zones were made, or no file that holds a time
    try {
        extractSolutionTimes(options);
    } catch (const std::bad_alloc&) {
        QuorUtilDialogErrMsg("Out of memory.");
    }
    try {
        if (!hasEqualTimes(fileSets))
            return true;
    } catch (const std::bad_alloc&) {
        QuorUtilDialogErrMsg("Out of memory.");
        return false;
    }
    return assignSolutionTimes(firstZone, options, fileSets);
}

bool assignSolutionTimes(std::int32_t firstZone, const Plot3DLoadOptions_s& options,
                         std::vector<Plot3DFileHandler>& fileSets) {
    std::int64_t zone = firstZone;
    for (Plot3DFileHandler& fileSet : fileSets) {
        const auto entry = options.solutionTimes.find(fileSet.getSolutionFileName());
        const std::int32_t gridCount = fileSet.getNumGrids();
        // Grids that are not selected use up a zone number here, although they have no zone.
        for (std::int64_t gridNumber = 1; gridNumber <= gridCount; ++gridNumber, ++zone) {
            if (!isGridSelected(options.gridSet, gridNumber))
                continue;
            if (entry == options.solutionTimes.end())
                return false;
            if (zone > maximumZoneNumber)
                return true;
            QuorUtilZoneSetSolutionTime(static_cast<std::int32_t>(zone), entry->second);
            fileSet.solutionFile->solutionTime = entry->second;
        }
    }
    return true;
}

} // namespace quorvia::quorutildataio
