// Auxiliary data of zones and of the data set.
#include "services/Call.h"

using namespace quorvia::host;

namespace {

// The auxiliary data of a zone or data set; null if its owner is gone.
AuxData* auxDataOf(const HostState& host, std::int64_t ownerId) {
    DataSet* data = host.frame.dataSet();
    if (data == nullptr)
        return nullptr;
    if (data->uniqueId() == ownerId)
        return &data->auxData;
    Zone* zone = data->zone(data->zoneNumber(ownerId));
    return zone != nullptr ? &zone->auxData : nullptr;
}

bool setItem(Call& call, QuorAuxDataHandle auxData, const char* name, const char* text) {
    const AuxDataReference* reference = call.object(auxData);
    if (reference == nullptr)
        return false;
    AuxData* items = auxDataOf(call.host(), reference->ownerId);
    if (items == nullptr)
        return call.violate("the zone or data set of these auxiliary data is gone");
    if (name == nullptr || text == nullptr || *name == '\0')
        return call.violate("name or text is null, or the name is empty");
    (*items)[name] = text;
    return true;
}

} // namespace

extern "C" {

QuorAuxDataHandle QuorUtilAuxDataZoneGetRef(std::int32_t zone) {
    Call call("QuorUtilAuxDataZoneGetRef", zone);
    const DataSet* data = call.fails() ? nullptr : call.host().frame.dataSet();
    const Zone* found = data != nullptr ? data->zone(zone) : nullptr;
    if (found == nullptr)
        return call.result(QuorAuxDataHandle{});
    return call.result(
        call.host().handles.of(QuorAuxDataHandle{}).add(call.operation(), {found->uniqueId}));
}

QuorAuxDataHandle QuorUtilAuxDataDataSetGetRef() {
    Call call("QuorUtilAuxDataDataSetGetRef");
    const DataSet* data = call.fails() ? nullptr : call.host().frame.dataSet();
    if (data == nullptr)
        return call.result(QuorAuxDataHandle{});
    return call.result(
        call.host().handles.of(QuorAuxDataHandle{}).add(call.operation(), {data->uniqueId()}));
}

bool QuorUtilAuxDataSetItem(QuorAuxDataHandle auxData, const char* name, const char* text,
                            std::int32_t type, std::int32_t retain) {
    Call call("QuorUtilAuxDataSetItem", auxData, name, text, type, retain);
    if (call.fails())
        return call.result(false);
    if (type != 0 || retain != 1)
        return call.result(call.violate("type is not 0, or retain is not 1"));
    return call.result(setItem(call, auxData, name, text));
}

} // extern "C"
