#include "loader/FunctionAppend.h"

#include <algorithm>
#include <string>

#include "dataset/variables/AddedVariables.h"
#include "dataset/zones/AppendedFunctions.h"
#include "plot3dfile/timestep/FieldCount.h"

namespace quorvia::quorutildataio {

namespace {

void reportZoneCount(const std::vector<Plot3DFileHandler>& fileSets,
                     const Plot3DLoadOptions_s& options, std::int32_t zones) {
    std::string text = "If you are appending function files, you must append one file per existing "
                       "time step already loaded. Also, any existing boundary zones will not allow "
                       "appending function files.";
    if (hasUniformGrids(options))
        text += " You are appending " + std::to_string(fileSets.size()) + " function files with " +
                std::to_string(fileSets.front().functionFiles.front()->numGrids) +
                " zones each and there exist " + std::to_string(zones) + " zones.";
    QuorUtilDialogErrMsg(text.c_str());
}

bool fillsAllZones(const std::vector<Plot3DFileHandler>& fileSets, std::int32_t zones) {
    const std::int64_t grids = fileSets.front().functionFiles.front()->numGrids;
    return static_cast<std::int64_t>(fileSets.size()) * grids == zones;
}

/// Headers that promise more variables than the file has room for must not make any.
bool checkCounts(const std::vector<Plot3DFileHandler>& fileSets) {
    const auto bad = std::find_if_not(fileSets.begin(), fileSets.end(), areCountsPlausible);
    if (bad == fileSets.end())
        return true;
    reportFileError(*bad->functionFiles.front(), "Invalid Plot 3D function file.");
    return false;
}

bool addVariables(const std::vector<Plot3DFileHandler>& fileSets, std::int32_t zones,
                  std::int32_t& varCount) {
    HostSet varsAdded;
    if (!addFunctionVariables(varsAdded, zones, varCount, fileSets))
        return false;
    if (!QuorUtilSetIsEmpty(varsAdded.get()))
        QuorUtilStateChanged(QuorStateChange_VarsAdded, varsAdded.get());
    return true;
}

} // namespace

bool appendFunctionFiles(std::vector<Plot3DFileHandler>& fileSets,
                         const Plot3DLoadOptions_s& options) {
    std::int32_t zones = 0;
    std::int32_t varCount = 0;
    if (!QuorUtilDataSetGetInfo(nullptr, &zones, &varCount)) {
        QuorUtilPostLastErrorMessage();
        return false;
    }
    if (!fillsAllZones(fileSets, zones)) {
        reportZoneCount(fileSets, options, zones);
        return false;
    }
    const std::int32_t oldVarCount = varCount;
    return checkCounts(fileSets) && addVariables(fileSets, zones, varCount) &&
           setUpAppendedFunctions({.options = options,
                                   .zoneCount = zones,
                                   .firstVar = oldVarCount + 1,
                                   .lastVar = varCount},
                                  fileSets);
}

} // namespace quorvia::quorutildataio
