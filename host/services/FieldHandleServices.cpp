// Fields by handle: in the callbacks of a deferred field, and for writing.
#include <cmath>
#include <cstring>
#include <limits>

#include "quorvia/QuorUtilityLibrary.h"
#include "services/Call.h"

using namespace quorvia::host;

namespace {

// The storage behind the handle; null, and a violation, if the field has changed since.
std::shared_ptr<FieldStorage> storageOf(Call& call, QuorFieldHandle field) {
    const FieldReference_s* reference = call.object(field);
    if (reference == nullptr)
        return nullptr;
    std::shared_ptr<FieldStorage> storage = reference->storage.lock();
    if (storage == nullptr)
        call.violate("the field is gone, or has changed since the handle was given out");
    return storage;
}

// The array to fill; null, and a violation, if the field is not in memory.
void* arrayOf(Call& call, const std::shared_ptr<FieldStorage>& storage) {
    if (storage == nullptr)
        return nullptr;
    if (storage->values() == nullptr)
        call.violate("the field has no array outside its load callback");
    return storage->values();
}

// The nearest value of the type; values outside its range become its limits.
std::int32_t toInteger(double value) {
    if (std::isnan(value))
        return 0;
    const double lowest = std::numeric_limits<std::int32_t>::min();
    const double highest = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::lround(std::fmin(std::fmax(value, lowest), highest)));
}

template <typename Number>
void store(void* array, std::int64_t index, Number number) {
    static_cast<Number*>(array)[index] = number;
}

// QuorFieldSetFunction. No operation of its own: it is called for each value of a large field.
void storeValue(QuorFieldHandle field, std::int64_t index, double value) {
    HostState_s& host = hostState();
    const FieldReference_s* reference = host.handles.of(field).find(field);
    const std::shared_ptr<FieldStorage> storage =
        reference != nullptr ? reference->storage.lock() : nullptr;
    if (storage == nullptr || storage->values() == nullptr || index < 0 ||
        index >= storage->valueCount()) {
        host.addViolation("QuorUtilDataValueRefGetSetFunc: bad field handle, or no value ", index);
        return;
    }
    if (storage->type() == QuorFieldDataType_Float)
        store(storage->values(), index, static_cast<float>(value));
    else if (storage->type() == QuorFieldDataType_Double)
        store(storage->values(), index, value);
    else
        store(storage->values(), index, toInteger(value));
}

} // namespace

extern "C" {

void* QuorUtilDataValueGetRawPtrByRef(QuorFieldHandle field) {
    Call call("QuorUtilDataValueGetRawPtrByRef", field);
    return call.result(arrayOf(call, storageOf(call, field)));
}

std::int32_t QuorUtilDataValueGetRefType(QuorFieldHandle field) {
    Call call("QuorUtilDataValueGetRefType", field);
    const std::shared_ptr<FieldStorage> storage = storageOf(call, field);
    return call.result(storage != nullptr ? storage->type()
                                          : std::int32_t{QuorFieldDataType_Invalid});
}

QuorFieldSetFunction QuorUtilDataValueRefGetSetFunc(QuorFieldHandle field) {
    Call call("QuorUtilDataValueRefGetSetFunc", field);
    storageOf(call, field);
    return call.result<QuorFieldSetFunction>(storeValue);
}

void QuorUtilDataValueArraySetByRef(QuorFieldHandle field, std::int64_t firstIndex,
                                    std::int64_t count, const void* values) {
    Call call("QuorUtilDataValueArraySetByRef", field, firstIndex, count, values);
    if (call.fails() || call.host().faults.isInterrupted())
        throw quorvia::InterruptedException();
    const std::shared_ptr<FieldStorage> storage = storageOf(call, field);
    void* array = arrayOf(call, storage);
    if (array == nullptr)
        return;
    if (firstIndex < 1 || count < 0 || count > storage->valueCount() - (firstIndex - 1)) {
        call.violation("values ", firstIndex, " and the next, ", count,
                       " in all, are not in a field of ", storage->valueCount());
        return;
    }
    if (values == nullptr && count > 0) {
        call.violation("values are null");
        return;
    }
    const std::int64_t width = valueWidth(storage->type());
    if (count > 0)
        std::memcpy(static_cast<char*>(array) + (firstIndex - 1) * width, values,
                    static_cast<std::size_t>(count * width));
}

void* QuorUtilDataValueGetClientData(QuorFieldHandle field) {
    Call call("QuorUtilDataValueGetClientData", field);
    const FieldReference_s* reference = call.object(field);
    return call.result(reference != nullptr ? reference->clientData : nullptr);
}

} // extern "C"
