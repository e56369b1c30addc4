// Named arguments of the ...X operations.
#include <algorithm>
#include <utility>

#include "services/Call.h"

using namespace quorvia::host;

namespace {

template <typename Value>
bool append(Call& call, QuorArgListHandle arguments, const char* key, Value value) {
    GuestArgList_s* list = call.object(arguments);
    if (list == nullptr)
        return false;
    if (key == nullptr)
        return call.violate("key is null");
    const std::string_view name = key;
    const auto isSameKey = [name](const GuestArgument_s& argument) { return argument.key == name; };
    if (std::any_of(list->arguments.begin(), list->arguments.end(), isSameKey))
        return call.violate(
            "the key ", [name] { return Transcript::quoted(name); }, " stands in the list already");
    list->arguments.push_back({std::string(name), std::move(value)});
    return true;
}

} // namespace

extern "C" {

QuorArgListHandle QuorUtilArgListAlloc() {
    Call call("QuorUtilArgListAlloc");
    return call.serve(QuorArgListHandle{}, [&] {
        return call.host().handles.of(QuorArgListHandle{}).add(call.operation(), {});
    });
}

void QuorUtilArgListClear(QuorArgListHandle arguments) {
    Call call("QuorUtilArgListClear", arguments);
    if (GuestArgList_s* list = call.object(arguments))
        list->arguments.clear();
}

void QuorUtilArgListDealloc(QuorArgListHandle* arguments) {
    Call call("QuorUtilArgListDealloc", arguments != nullptr ? *arguments : nullptr);
    call.giveBack(arguments);
}

bool QuorUtilArgListAppendString(QuorArgListHandle arguments, const char* key, const char* value) {
    Call call("QuorUtilArgListAppendString", arguments, key, value);
    if (value == nullptr)
        return call.result(call.violate("text is null"));
    return call.serve([&] { return append(call, arguments, key, std::string(value)); });
}

bool QuorUtilArgListAppendInt(QuorArgListHandle arguments, const char* key, std::int64_t value) {
    Call call("QuorUtilArgListAppendInt", arguments, key, value);
    return call.serve([&] { return append(call, arguments, key, value); });
}

bool QuorUtilArgListAppendDouble(QuorArgListHandle arguments, const char* key, double value) {
    Call call("QuorUtilArgListAppendDouble", arguments, key, value);
    return call.serve([&] { return append(call, arguments, key, value); });
}

bool QuorUtilArgListAppendStringList(QuorArgListHandle arguments, const char* key,
                                     QuorStringListHandle value) {
    Call call("QuorUtilArgListAppendStringList", arguments, key, value);
    if (call.object(value) == nullptr)
        return call.result(false);
    return call.serve([&] { return append(call, arguments, key, value); });
}

bool QuorUtilArgListAppendArray(QuorArgListHandle arguments, const char* key, const void* value) {
    Call call("QuorUtilArgListAppendArray", arguments, key, value);
    if (value == nullptr)
        return call.result(call.violate("array is null"));
    return call.serve([&] { return append(call, arguments, key, value); });
}

bool QuorUtilArgListAppendFunction(QuorArgListHandle arguments, const char* key,
                                   QuorFunction value) {
    Call call("QuorUtilArgListAppendFunction", arguments, key, value);
    if (value == nullptr)
        return call.result(call.violate("function is null"));
    return call.serve([&] { return append(call, arguments, key, value); });
}

} // extern "C"
