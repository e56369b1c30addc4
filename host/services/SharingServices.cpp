// One field for several zones.
#include <cstring>
#include <utility>

#include "services/Call.h"

using namespace quorvia::host;

namespace {

struct FieldPair_s {
    Field_s* source = nullptr;
    Field_s* destination = nullptr;
    bool matches = false; // same type, same number of values
};

FieldPair_s fieldPair(Call& call, std::int32_t sourceZone, std::int32_t destinationZone,
                      std::int32_t var) {
    FieldPair_s pair{call.field(sourceZone, var), call.field(destinationZone, var)};
    if (pair.source == nullptr || pair.destination == nullptr)
        return {};
    pair.matches = pair.source->type == pair.destination->type &&
                   call.zone(sourceZone)->valueCount(pair.source->location) ==
                       call.zone(destinationZone)->valueCount(pair.destination->location);
    return pair;
}

bool share(Call& call, const FieldPair_s& pair) {
    if (!call.host().settings.sharingAllowed)
        return call.refuse("sharing is not allowed");
    if (!pair.matches)
        return call.refuse("the fields differ in type or in number of values");
    if (pair.source->storage == nullptr)
        return call.refuse("the source field is empty");
    // What the destination held ends last: its clean-up calls the guest.
    const std::shared_ptr<FieldStorage> old =
        std::exchange(pair.destination->storage, pair.source->storage);
    return true;
}

bool copy(Call& call, const FieldPair_s& pair) {
    if (!pair.matches)
        return call.refuse("the fields differ in type or in number of values");
    if (pair.source->storage == nullptr)
        return call.refuse("the source field is empty");
    if (pair.destination->state() != FieldState_e::Stored)
        return call.violate("the destination has no storage of its own");
    const std::shared_ptr<FieldStorage> source = pair.source->storage;
    const std::shared_ptr<FieldStorage> destination = pair.destination->storage;
    if (!call.host().fetch(*source))
        return call.refuse("the source field could not be fetched");
    if (source != destination)
        std::memcpy(destination->values(), source->values(),
                    static_cast<std::size_t>(source->byteCount()));
    return true;
}

} // namespace

extern "C" {

bool QuorUtilDataValueIsSharingOk(std::int32_t sourceZone, std::int32_t zone, std::int32_t var) {
    Call call("QuorUtilDataValueIsSharingOk", sourceZone, zone, var);
    if (call.fails())
        return call.result(false);
    const bool matches = fieldPair(call, sourceZone, zone, var).matches;
    return call.result(matches && call.host().settings.sharingAllowed);
}

bool QuorUtilDataValueShare(std::int32_t sourceZone, std::int32_t destinationZone,
                            std::int32_t var) {
    Call call("QuorUtilDataValueShare", sourceZone, destinationZone, var);
    return call.serve([&] {
        const FieldPair_s pair = fieldPair(call, sourceZone, destinationZone, var);
        return pair.source != nullptr && share(call, pair);
    });
}

bool QuorUtilDataValueCopy(std::int32_t sourceZone, std::int32_t destinationZone,
                           std::int32_t var) {
    Call call("QuorUtilDataValueCopy", sourceZone, destinationZone, var);
    return call.serve([&] {
        const FieldPair_s pair = fieldPair(call, sourceZone, destinationZone, var);
        return pair.source != nullptr && copy(call, pair);
    });
}

} // extern "C"
