#include "dataset/variables/AddedVariables.h"

#include <algorithm>
#include <string>

#include "dataset/variables/VariableNames.h"

namespace quorvia::quorutildataio {

namespace {

using ZoneTypes = HostArray<std::int32_t>;

constexpr bool showErrors = true;

/// One type for every zone.
ZoneTypes makeZoneTypes(std::int32_t zoneCount, std::int32_t type) {
    ZoneTypes types = ZoneTypes::allocate(zoneCount, "zonefielddatatype");
    std::fill(types.begin(), types.end(), type);
    return types;
}

bool addVariable(QuorArgListHandle arguments, const char* name, const ZoneTypes& types) {
    constexpr std::int64_t noStorageYet = 1;
    QuorUtilArgListClear(arguments);
    return QuorUtilArgListAppendString(arguments, "Name", name) &&
           QuorUtilArgListAppendArray(arguments, "VarDataType", types.data()) &&
           QuorUtilArgListAppendInt(arguments, "DeferVarCreation", noStorageYet) &&
           QuorUtilDataSetAddVarX(arguments);
}

/// The type of the first variable that is not of the grid.
std::int32_t firstSolutionType(const Plot3DFileHandler& handler) {
    constexpr Plot3DLoadShape_s withoutIBlank; // its place is not asked for
    const Plot3DFile_s* grid = handler.gridFile;
    const std::int32_t index = grid != nullptr ? grid->numVars + (grid->hasIBlank ? 1 : 0) : 0;
    return fieldDataType(handler, index, withoutIBlank);
}

/// The variables of one function file.
bool addVariablesOf(const Plot3DFile_s& file, std::int32_t ordinal, const ZoneTypes& types,
                    HostSet& varsAdded, std::int32_t& varCount) {
    for (std::int32_t k = 1; k <= file.numVars; ++k) {
        const std::string name = functionName(ordinal, k);
        const HostArgList arguments(QuorUtilArgListAlloc());
        if (!arguments || !addVariable(arguments.get(), name.c_str(), types))
            return false;
        ++varCount;
        if (!QuorUtilSetAddMember(varsAdded.get(), varCount, showErrors))
            return false;
    }
    return true;
}

} // namespace

bool addMissingVariables(const Plot3DLoadOptions_s& options, const Plot3DFileHandler& firstHandler,
                         QuorStringListHandle names, QuorArgListHandle arguments,
                         std::int32_t wantedVarCount, std::int32_t& varCount, HostSet& varsAdded) {
    if (options.append && !options.hasGridFiles)
        QuorUtilDialogMessageBox("The existing zones in quorvia do not have as many variables per "
                                 "datapoint as the appended plot3d file thus variables will be "
                                 "created for them and initialized to zero.",
                                 QuorMessageBox_Information);
    // The host takes one type for each zone that it has, whatever the load has counted.
    std::int32_t zoneCount = 0;
    if (!QuorUtilDataSetGetInfo(nullptr, &zoneCount, nullptr))
        return false;
    const ZoneTypes types = makeZoneTypes(zoneCount, firstSolutionType(firstHandler));
    if (!types)
        return false;
    varsAdded = HostSet(QuorUtilSetAlloc(showErrors));
    if (!varsAdded)
        return true;
    for (std::int32_t var = varCount + 1; var <= wantedVarCount; ++var) {
        const HostString name(QuorUtilStringListGetString(names, var));
        if (!name || !addVariable(arguments, name.get(), types) ||
            !QuorUtilSetAddMember(varsAdded.get(), var, showErrors))
            return false;
    }
    varCount = wantedVarCount;
    return true;
}

bool addFunctionVariables(HostSet& varsAdded, std::int32_t zoneCount, std::int32_t& varCount,
                          const std::vector<Plot3DFileHandler>& handlers) {
    if (!varsAdded)
        varsAdded = HostSet(QuorUtilSetAlloc(showErrors));
    if (!varsAdded)
        return false;
    const std::vector<Plot3DFile_s*>& files = handlers.front().functionFiles;
    const ZoneTypes types = makeZoneTypes(
        zoneCount, !files.empty() && files.front()->isDoublePrecision ? QuorFieldDataType_Double
                                                                      : QuorFieldDataType_Float);
    if (!types)
        return false;
    std::int32_t ordinal = 1;
    for (const Plot3DFile_s* file : files) {
        if (!findFreeFunctionOrdinal(ordinal) ||
            !addVariablesOf(*file, ordinal, types, varsAdded, varCount))
            return false;
        ++ordinal;
    }
    return true;
}

} // namespace quorvia::quorutildataio
