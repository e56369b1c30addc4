// Fields by zone and variable: what they are, and their storage.
#include <limits>
#include <utility>

#include "services/Call.h"
#include "services/GuestDeferral.h"

using namespace quorvia::host;

namespace {

// The old storage ends last: its clean-up calls the guest, who must find the field as it is now.
void replaceStorage(Field_s& field, std::shared_ptr<FieldStorage> storage) {
    std::swap(field.storage, storage);
}

// Values of the field, if so many can be stored at all; otherwise nothing.
std::optional<std::int64_t> storableCount(Call& call, const Zone_s& zone, const Field_s& field) {
    const std::int64_t count = zone.valueCount(field.location);
    if (count <= std::numeric_limits<std::int64_t>::max() / valueWidth(field.type))
        return count;
    call.refuse("the field has more values than memory has addresses");
    return std::nullopt;
}

bool allocateField(Call& call, std::int32_t zone, std::int32_t var) {
    Field_s* field = call.field(zone, var);
    if (field == nullptr)
        return false;
    const std::optional<std::int64_t> count = storableCount(call, *call.zone(zone), *field);
    if (!count.has_value())
        return false;
    std::shared_ptr<FieldStorage> storage = FieldStorage::stored(field->type, *count);
    if (storage == nullptr)
        return call.refuse("no memory for a field");
    replaceStorage(*field, std::move(storage));
    return true;
}

bool deferField(Call& call, std::int32_t zone, std::int32_t var,
                const FieldCallbacks_s& callbacks) {
    Field_s* field = call.field(zone, var);
    if (field == nullptr)
        return false;
    if (callbacks.load == nullptr || callbacks.cleanUp == nullptr)
        return call.violate("the load or the clean-up callback is null");
    const std::optional<std::int64_t> count = storableCount(call, *call.zone(zone), *field);
    if (!count.has_value())
        return false;
    replaceStorage(*field, FieldStorage::deferred<GuestDeferral>(field->type, *count, callbacks));
    return true;
}

// The array of a stored field. That of a deferred field comes and goes, so that it is not lent.
void* plainArray(Call& call, const Field_s& field) {
    if (call.fails() || !call.host().settings.plainArrays || field.state() != FieldState_e::Stored)
        return nullptr;
    return field.storage->values();
}

} // namespace

extern "C" {

std::int32_t QuorUtilDataValueGetLocation(std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueGetLocation", zone, var);
    const Field_s* field = call.field(zone, var);
    return call.result(field != nullptr ? field->location : QuorValueLocation_Nodal);
}

std::int32_t QuorUtilDataValueGetType(std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueGetType", zone, var);
    const Field_s* field = call.field(zone, var);
    return call.result(field != nullptr ? field->type : QuorFieldDataType_Invalid);
}

bool QuorUtilDataValueIsPassive(std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueIsPassive", zone, var);
    const Field_s* field = call.field(zone, var);
    return call.result(field != nullptr && field->passive);
}

bool QuorUtilDataValueAlloc(std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueAlloc", zone, var);
    return call.serve([&] { return allocateField(call, zone, var); });
}

void QuorUtilDataValueGetRawPtr(std::int32_t zone, std::int32_t var, void** values,
                                std::int32_t* dataType) {
    Call call("QuorUtilDataValueGetRawPtr", zone, var);
    const Field_s* field = call.field(zone, var);
    void* array = field != nullptr ? plainArray(call, *field) : nullptr;
    const std::int32_t type = field != nullptr ? field->type : QuorFieldDataType_Invalid;
    if (values != nullptr)
        *values = array;
    if (dataType != nullptr)
        *dataType = type;
    call.out(array);
    call.out(type);
}

QuorFieldHandle QuorUtilDataValueGetWritableRef(std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueGetWritableRef", zone, var);
    return call.serve(QuorFieldHandle{}, [&]() -> QuorFieldHandle {
        const Field_s* field = call.field(zone, var);
        if (field == nullptr || field->state() != FieldState_e::Stored)
            return nullptr;
        return call.host()
            .handles.of(QuorFieldHandle{})
            .add(call.operation(), {field->storage, nullptr});
    });
}

bool QuorUtilDataValueCustomLOD(std::int32_t zone, std::int32_t var, QuorFieldLoadCallback load,
                                QuorFieldUnloadCallback unload, QuorFieldCleanupCallback cleanUp,
                                QuorFieldValueCallback getValue, QuorFieldValueCallback setValue,
                                void* clientData) {
    Call call("QuorUtilDataValueCustomLOD", zone, var);
    return call.serve([&] {
        if (getValue != nullptr || setValue != nullptr)
            return call.violate("the slots for single values stay empty");
        return deferField(call, zone, var, {load, unload, cleanUp, clientData});
    });
}

} // extern "C"
