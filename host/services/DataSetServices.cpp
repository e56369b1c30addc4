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
    const GuestStringList_s* list = call.object(names);
    if (list == nullptr)
        return false;
    std::vector<std::string> variableNames;
    for (const std::optional<std::string>& name : list->strings)
        variableNames.push_back(name.value_or(""));
    call.host().frame().createDataSet(std::move(loaderName), std::move(title), variableNames);
    return true;
}

/// The numbers to delete; null, and a violation, if one of them does not exist.
const std::set<std::int64_t>* numbersUpTo(Call& call, QuorSetHandle set, std::int32_t count,
                                          const char* what) {
    const GuestSet_s* found = call.object(set);
    if (found == nullptr)
        return nullptr;
    if (!found->members.empty() && *found->members.rbegin() > count) {
        call.violate("there is no ", what, " ", *found->members.rbegin());
        return nullptr;
    }
    return &found->members;
}

bool deleteZones(Call& call, QuorSetHandle zones) {
    DataSet* data = call.dataSet();
    if (data == nullptr)
        return false;
    const std::set<std::int64_t>* numbers = numbersUpTo(call, zones, data->zoneCount(), "zone");
    if (numbers != nullptr)
        data->deleteZones(*numbers);
    return numbers != nullptr;
}

bool deleteVariables(Call& call, QuorSetHandle vars) {
    DataSet* data = call.dataSet();
    if (data == nullptr)
        return false;
    const std::set<std::int64_t>* numbers =
        numbersUpTo(call, vars, data->variableCount(), "variable");
    if (numbers != nullptr)
        data->deleteVariables(*numbers);
    return numbers != nullptr;
}

/// A set of every number from 1 to the count that the data set gives.
bool giveNumbers(Call& call, QuorSetHandle* numbers, std::int32_t (DataSet::*count)() const) {
    if (numbers == nullptr)
        return call.result(call.violate("reference is null"));
    *numbers = call.withinMemory(QuorSetHandle{}, [&]() -> QuorSetHandle {
        const DataSet* data = call.host().frame().dataSet();
        if (data == nullptr) {
            call.refuse("there is no data set");
            return nullptr;
        }
        GuestSet_s set;
        for (std::int64_t number = 1; number <= (data->*count)(); ++number)
            set.members.insert(set.members.end(), number);
        return call.host().handles.of(QuorSetHandle{}).add(call.operation(), std::move(set));
    });
    call.result(*numbers != nullptr);
    if (*numbers != nullptr)
        call.out(*numbers);
    return *numbers != nullptr;
}

bool giveInfo(Call& call, char** title, std::int32_t* zoneCount, std::int32_t* varCount) {
    const DataSet* data = call.host().frame().dataSet();
    if (data == nullptr)
        return call.refuse("there is no data set");
    if (title != nullptr)
        *title = call.host().memory.copyText(call.operation(), data->title);
    if (title != nullptr && *title == nullptr)
        return call.refuse("no memory for the title");
    if (zoneCount != nullptr)
        *zoneCount = data->zoneCount();
    if (varCount != nullptr)
        *varCount = data->variableCount();
    return true;
}

} // namespace

extern "C" {

bool QuorUtilDataSetIsAvailable() {
    Call call("QuorUtilDataSetIsAvailable");
    return call.result(call.host().frame().dataSet() != nullptr);
}

bool QuorUtilDataSetGetInfo(char** title, std::int32_t* zoneCount, std::int32_t* varCount) {
    Call call("QuorUtilDataSetGetInfo");
    if (title != nullptr)
        *title = nullptr;
    const bool isGiven = call.serve([&] { return giveInfo(call, title, zoneCount, varCount); });
    if (isGiven) {
        call.out(call.host().frame().dataSet()->zoneCount());
        call.out(call.host().frame().dataSet()->variableCount());
    }
    return isGiven;
}

bool QuorUtilDataSetCreateX(QuorArgListHandle arguments) {
    Call call("QuorUtilDataSetCreateX", arguments);
    return call.serve([&] { return createDataSet(call, arguments); });
}

bool QuorUtilDataSetDeleteZone(QuorSetHandle zones) {
    Call call("QuorUtilDataSetDeleteZone", zones);
    return call.serve([&] { return deleteZones(call, zones); });
}

bool QuorUtilZoneDelete(QuorSetHandle zones) {
    Call call("QuorUtilZoneDelete", zones);
    return call.serve([&] { return deleteZones(call, zones); });
}

bool QuorUtilDataSetDeleteVar(QuorSetHandle vars) {
    Call call("QuorUtilDataSetDeleteVar", vars);
    return call.serve([&] { return deleteVariables(call, vars); });
}

std::int32_t QuorUtilDataSetGetMaxStrandID() {
    Call call("QuorUtilDataSetGetMaxStrandID");
    const DataSet* data = call.host().frame().dataSet();
    return call.result(data != nullptr ? data->maxStrandId() : 0);
}

bool QuorUtilDataSetIsSharingAllowed() {
    Call call("QuorUtilDataSetIsSharingAllowed");
    return call.result(call.host().settings.sharingAllowed);
}

bool QuorUtilZoneGetEnabled(QuorSetHandle* zones) {
    Call call("QuorUtilZoneGetEnabled");
    return giveNumbers(call, zones, &DataSet::zoneCount);
}

bool QuorUtilVarGetEnabled(QuorSetHandle* vars) {
    Call call("QuorUtilVarGetEnabled");
    return giveNumbers(call, vars, &DataSet::variableCount);
}

} // extern "C"
