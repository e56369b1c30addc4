// Adding a variable.
#include <utility>

#include "services/NewFields.h"

using namespace quorvia::host;

namespace {

bool addVariable(Call& call, QuorArgListHandle arguments) {
    DataSet* data = call.dataSet();
    if (data == nullptr)
        return false;
    ArgumentReader reader(call, arguments, {"Name", "VarDataType", "DeferVarCreation"});
    std::string name = reader.text("Name");
    const bool isDeferred = reader.integerOr("DeferVarCreation", 0) == 1;
    const std::size_t zoneCount = data->zones().size();
    const std::vector<std::int32_t> types =
        reader.has("VarDataType") ? readTypes(call, reader, zoneCount)
                                  : std::vector<std::int32_t>(zoneCount, QuorFieldDataType_Float);
    if (!reader.ok() || types.size() != zoneCount)
        return false;
    std::vector<Field_s> fields(zoneCount);
    for (std::size_t index = 0; index < zoneCount; ++index) {
        fields[index].type = types[index];
        const Zone_s& zone = *data->zones()[index];
        if (!createField(call, fields[index], zone.valueCount(QuorValueLocation_Nodal), isDeferred))
            return false;
    }
    data->addVariable(std::move(name), std::move(fields));
    call.note([&] { return describeTypes(types); });
    return true;
}

} // namespace

extern "C" {

bool QuorUtilDataSetAddVarX(QuorArgListHandle arguments) {
    Call call("QuorUtilDataSetAddVarX", arguments);
    return call.serve([&] { return addVariable(call, arguments); });
}

} // extern "C"
