// The data set as a whole: what it holds, how it begins, what is taken out of it.
#include "services/ArgumentReader.h"

using namespace quorvia::host;

namespace {

bool createDataSet(Call& call, QuorArgListHandle arguments) {
    ArgumentReader reader(call, arguments, {"LoaderName", "DataSetTitle", "VarNames"});
    std::string loaderName = reader.text("LoaderName");
    std::string title = reader.text("DataSetTitle");
    const QuorStringListHandle names = reader.stringList("VarNames");
    if (!reader.ok())
        return false;
    const GuestStringList* list = call.object(names);
    if (list == nullptr)
        return false;
    std::vector<std::string> variableNames;
    for (const std::optional<std::string>& name : list->strings)
        variableNames.push_back(name.value_or(""));
    call.host().frame.createDataSet(std::move(loaderName), std::move(title), variableNames);
    return true;
}

// The numbers to delete; null, and a violation, if one of them does not exist.
const std::set<std::int64_t>* numbersUpTo(Call& call, QuorSetHandle set, std::int32_t count,
                                          const char* what) {
    const GuestSet* found = call.object(set);
    if (found == nullptr)
        return nullptr;
    if (!found->members.empty() && *found->members.rbegin() > count) {
        call.violate(std::string("there is no ") + what + ' ' +
                     std::to_string(*found->members.rbegin()));
        return nullptr;
    }
    return &found->members;
}

bool deleteZones(Call& call, QuorSetHandle zones) {
    DataSet* data = call.fails() ? nullptr : call.dataSet();
    if (data == nullptr)
        return false;
    const std::set<std::int64_t>* numbers = numbersUpTo(call, zones, data->zoneCount(), "zone");
    if (numbers == nullptr)
        return false;
    // The guest may give the set back while its clean-up callbacks run.
    data->deleteZones(std::set<std::int64_t>(*numbers));
    return true;
}

bool deleteVariables(Call& call, QuorSetHandle vars) {
    DataSet* data = call.fails() ? nullptr : call.dataSet();
    if (data == nullptr)
        return false;
    const std::set<std::int64_t>* numbers =
        numbersUpTo(call, vars, data->variableCount(), "variable");
    if (numbers == nullptr)
        return false;
    data->deleteVariables(std::set<std::int64_t>(*numbers));
    return true;
}

// Every number from 1 to `count`.
QuorSetHandle setUpTo(Call& call, std::int32_t count) {
    GuestSet set;
    for (std::int64_t number = 1; number <= count; ++number)
        set.members.insert(set.members.end(), number);
    return call.host().handles.of(QuorSetHandle{}).add(call.operation(), std::move(set));
}

} // namespace

extern "C" {

bool QuorUtilDataSetIsAvailable() {
    Call call("QuorUtilDataSetIsAvailable");
    return call.result(call.host().frame.dataSet() != nullptr);
}

bool QuorUtilDataSetGetInfo(char** title, std::int32_t* zoneCount, std::int32_t* varCount) {
    Call call("QuorUtilDataSetGetInfo");
    if (title != nullptr)
        *title = nullptr;
    const DataSet* data = call.fails() ? nullptr : call.host().frame.dataSet();
    if (data == nullptr)
        return call.result(call.refuse("there is no data set"));
    if (title != nullptr)
        *title = call.host().memory.copyText(call.operation(), data->title);
    if (zoneCount != nullptr)
        *zoneCount = data->zoneCount();
    if (varCount != nullptr)
        *varCount = data->variableCount();
    call.result(true);
    call.out(data->zoneCount());
    call.out(data->variableCount());
    return true;
}

bool QuorUtilDataSetCreateX(QuorArgListHandle arguments) {
    Call call("QuorUtilDataSetCreateX", arguments);
    return call.result(!call.fails() && createDataSet(call, arguments));
}

bool QuorUtilDataSetDeleteZone(QuorSetHandle zones) {
    Call call("QuorUtilDataSetDeleteZone", zones);
    return call.result(deleteZones(call, zones));
}

bool QuorUtilZoneDelete(QuorSetHandle zones) {
    Call call("QuorUtilZoneDelete", zones);
    return call.result(deleteZones(call, zones));
}

bool QuorUtilDataSetDeleteVar(QuorSetHandle vars) {
    Call call("QuorUtilDataSetDeleteVar", vars);
    return call.result(deleteVariables(call, vars));
}

std::int32_t QuorUtilDataSetGetMaxStrandID() {
    Call call("QuorUtilDataSetGetMaxStrandID");
    const DataSet* data = call.host().frame.dataSet();
    return call.result(data != nullptr ? data->maxStrandId() : 0);
}

bool QuorUtilDataSetIsSharingAllowed() {
    Call call("QuorUtilDataSetIsSharingAllowed");
    return call.result(call.host().settings.sharingAllowed);
}

bool QuorUtilZoneGetEnabled(QuorSetHandle* zones) {
    Call call("QuorUtilZoneGetEnabled");
    if (zones == nullptr)
        return call.result(call.violate("reference is null"));
    *zones = nullptr;
    const DataSet* data = call.fails() ? nullptr : call.host().frame.dataSet();
    if (data == nullptr)
        return call.result(call.refuse("there is no data set"));
    *zones = setUpTo(call, data->zoneCount());
    call.result(true);
    call.out(*zones);
    return true;
}

bool QuorUtilVarGetEnabled(QuorSetHandle* vars) {
    Call call("QuorUtilVarGetEnabled");
    if (vars == nullptr)
        return call.result(call.violate("reference is null"));
    *vars = nullptr;
    const DataSet* data = call.fails() ? nullptr : call.host().frame.dataSet();
    if (data == nullptr)
        return call.result(call.refuse("there is no data set"));
    *vars = setUpTo(call, data->variableCount());
    call.result(true);
    call.out(*vars);
    return true;
}

} // extern "C"
