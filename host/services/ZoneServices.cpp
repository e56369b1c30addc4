// Zones and variables one by one.
#include <algorithm>
#include <array>
#include <string>

#include "services/Call.h"
#include "services/FileNameTimes.h"

using namespace quorvia::host;

namespace {

bool extractTimes(Call& call, QuorStringListHandle names, double* times) {
    const GuestStringList_s* list = call.object(names);
    if (list == nullptr)
        return false;
    if (times == nullptr && !list->strings.empty())
        return call.violate("times are null");
    const std::optional<std::vector<double>>& given = call.host().settings.timesFromFileNames;
    std::vector<double> found;
    if (given.has_value()) {
        found = *given;
    } else {
        for (const std::optional<std::string>& name : list->strings) {
            if (const std::optional<double> time = timeFromFileName(name.value_or("")))
                found.push_back(*time);
        }
    }
    if (found.empty() || found.size() != list->strings.size())
        return call.refuse("not every file name has a time");
    std::copy(found.begin(), found.end(), times);
    return true;
}

} // namespace

extern "C" {

void QuorUtilZoneGetInfo(std::int32_t zone, std::int64_t* iMax, std::int64_t* jMax,
                         std::int64_t* kMax, void* further) {
    Call call("QuorUtilZoneGetInfo", zone);
    if (further != nullptr)
        call.violation("the last argument is reserved");
    const Zone_s* found = call.zone(zone);
    using Sizes = std::array<std::int64_t, 3>;
    const Sizes sizes = found != nullptr ? Sizes{found->i, found->j, found->k} : Sizes{0, 0, 0};
    std::int64_t* const targets[] = {iMax, jMax, kMax};
    for (std::size_t axis = 0; axis < sizes.size(); ++axis) {
        if (targets[axis] != nullptr)
            *targets[axis] = sizes[axis];
        call.out(sizes[axis]);
    }
}

std::int32_t QuorUtilZoneGetType(std::int32_t zone) {
    Call call("QuorUtilZoneGetType", zone);
    const Zone_s* found = call.zone(zone);
    return call.result(found != nullptr ? found->type : QuorZoneType_Ordered);
}

bool QuorUtilZoneRename(std::int32_t zone, const char* name) {
    Call call("QuorUtilZoneRename", zone, name);
    return call.serve([&] {
        Zone_s* found = call.zone(zone);
        if (found == nullptr)
            return false;
        if (name == nullptr)
            return call.violate("name is null");
        found->name = std::string(name);
        return true;
    });
}

std::int32_t QuorUtilZoneGetStrandID(std::int32_t zone) {
    Call call("QuorUtilZoneGetStrandID", zone);
    const Zone_s* found = call.zone(zone);
    return call.result(found != nullptr ? found->strandId : 0);
}

void QuorUtilZoneSetStrandID(std::int32_t zone, std::int32_t strand) {
    Call call("QuorUtilZoneSetStrandID", zone, strand);
    Zone_s* found = call.zone(zone);
    if (found == nullptr)
        return;
    if (strand < 0)
        call.violation("there is no strand ", strand);
    else
        found->strandId = strand;
}

bool QuorUtilZoneSetSolutionTime(std::int32_t zone, double solutionTime) {
    Call call("QuorUtilZoneSetSolutionTime", zone, solutionTime);
    DataSet* data = call.fails() ? nullptr : call.dataSet();
    if (data == nullptr)
        return call.result(false);
    Zone_s* found = data->zone(zone);
    if (found == nullptr) // not blamed: a loader may number on over grids that have no zone
        return call.result(call.refuse("there is no zone ", zone));
    found->solutionTime = solutionTime;
    call.host().solutionTimesChanged = true;
    call.host().tellSolutionTimes();
    return call.result(true);
}

std::int64_t QuorUtilZoneGetUniqueID(std::int32_t zone) {
    Call call("QuorUtilZoneGetUniqueID", zone);
    const Zone_s* found = call.zone(zone);
    return call.result(found != nullptr ? found->uniqueId : 0);
}

std::int32_t QuorUtilZoneGetNumByUniqueID(std::int64_t zoneId) {
    Call call("QuorUtilZoneGetNumByUniqueID", zoneId);
    const DataSet* data = call.dataSet();
    return call.result(data != nullptr ? data->zoneNumber(zoneId) : 0);
}

std::int64_t QuorUtilVarGetUniqueID(std::int32_t var) {
    Call call("QuorUtilVarGetUniqueID", var);
    const Variable_s* found = call.variable(var);
    return call.result(found != nullptr ? found->uniqueId : 0);
}

std::int32_t QuorUtilVarGetNumByUniqueID(std::int64_t varId) {
    Call call("QuorUtilVarGetNumByUniqueID", varId);
    const DataSet* data = call.dataSet();
    return call.result(data != nullptr ? data->variableNumber(varId) : 0);
}

bool QuorUtilVarGetName(std::int32_t var, char** name) {
    Call call("QuorUtilVarGetName", var);
    if (name == nullptr)
        return call.result(call.violate("reference is null"));
    *name = nullptr;
    const Variable_s* found = nullptr;
    *name = call.withinMemory<char*>(nullptr, [&]() -> char* {
        found = call.variable(var);
        return found != nullptr ? call.host().memory.copyText(call.operation(), found->name)
                                : nullptr;
    });
    call.result(*name != nullptr);
    if (found != nullptr)
        call.out(found->name);
    return *name != nullptr;
}

void QuorUtilZoneStyleApplyAuto(QuorSetHandle zones) {
    Call call("QuorUtilZoneStyleApplyAuto", zones);
    if (const GuestSet_s* set = call.object(zones))
        call.host().log.addAutoStyled(set->members);
}

bool QuorUtilExtractTimesFromFileNames(QuorStringListHandle names, double* times, bool showErrors) {
    Call call("QuorUtilExtractTimesFromFileNames", names, showErrors);
    return call.serve([&] { return extractTimes(call, names, times); });
}

} // extern "C"
