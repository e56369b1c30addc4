// Auxiliary data of zones and of the data set.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

// The auxiliary data of a zone or data set; null if its owner is gone.
AuxData* auxDataOf(const HostState_s& host, std::int64_t ownerId) {
    DataSet* data = host.frame().dataSet();
    if (data == nullptr)
        return nullptr;
    if (data->uniqueId() == ownerId)
        return &data->auxData;
    Zone_s* zone = data->zone(data->zoneNumber(ownerId));
    return zone != nullptr ? &zone->auxData : nullptr;
}

QuorAuxDataHandle referTo(Call& call, std::int64_t ownerId) {
    return call.host().handles.of(QuorAuxDataHandle{}).add(call.operation(), {ownerId});
}

bool setItem(Call& call, QuorAuxDataHandle auxData, const char* name, const char* text) {
    const AuxDataReference_s* reference = call.object(auxData);
    if (reference == nullptr)
        return false;
    AuxData* items = auxDataOf(call.host(), reference->ownerId);
    if (items == nullptr)
        return call.violate("the zone or data set of these auxiliary data is gone");
    if (name == nullptr || text == nullptr || *name == '\0')
        return call.violate("name or text is null, or the name is empty");
    items->insert_or_assign(std::string(name), std::string(text));
    return true;
}

} // namespace

extern "C" {

QuorAuxDataHandle QuorUtilAuxDataZoneGetRef(std::int32_t zone) {
    Call call("QuorUtilAuxDataZoneGetRef", zone);
    return call.serve(QuorAuxDataHandle{}, [&] {
        const DataSet* data = call.host().frame().dataSet();
        const Zone_s* found = data != nullptr ? data->zone(zone) : nullptr;
        return found != nullptr ? referTo(call, found->uniqueId) : nullptr;
    });
}

QuorAuxDataHandle QuorUtilAuxDataDataSetGetRef() {
    Call call("QuorUtilAuxDataDataSetGetRef");
    return call.serve(QuorAuxDataHandle{}, [&] {
        const DataSet* data = call.host().frame().dataSet();
        return data != nullptr ? referTo(call, data->uniqueId()) : nullptr;
    });
}

bool QuorUtilAuxDataSetItem(QuorAuxDataHandle auxData, const char* name, const char* text,
                            std::int32_t type, std::int32_t retain) {
    Call call("QuorUtilAuxDataSetItem", auxData, name, text, type, retain);
    return call.serve([&] {
        if (type != 0 || retain != 1)
            return call.violate("type is not 0, or retain is not 1");
        return setItem(call, auxData, name, text);
    });
}

} // extern "C"
