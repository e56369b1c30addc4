// Node maps of finite-element zones.
#include <limits>

#include "services/Call.h"

using namespace quorvia::host;

namespace {

bool isInRange(std::int64_t number, std::int64_t highest) {
    return number >= 1 && number <= highest;
}

/// Null for an ordered zone, and if there is no memory for the map.
QuorNodeMapHandle referTo(Call& call, const Zone_s* zone) {
    if (zone == nullptr || zone->nodeMap == nullptr)
        return nullptr;
    auto& handles = call.host().handles.of(QuorNodeMapHandle{});
    const QuorNodeMapHandle handle = handles.add(call.operation(), {zone->nodeMap});
    if (zone->nodeMap->prepare()) // last: it can't be told from a map that was not set
        return handle;
    handles.remove(handle);
    call.refuse("no memory for a node map");
    return nullptr;
}

} // namespace

extern "C" {

QuorNodeMapHandle QuorUtilDataNodeGetRef(std::int32_t zone) {
    Call call("QuorUtilDataNodeGetRef", zone);
    const Zone_s* found = call.zone(zone);
    return call.serve(QuorNodeMapHandle{}, [&] { return referTo(call, found); });
}

void QuorUtilDataNodeSetByRef(QuorNodeMapHandle nodeMap, std::int64_t element, std::int32_t corner,
                              std::int64_t node) {
    Call call("QuorUtilDataNodeSetByRef", nodeMap, element, corner, node);
    const NodeMapReference_s* reference = call.object(nodeMap);
    if (reference == nullptr)
        return;
    const std::shared_ptr<NodeMap> map = reference->nodeMap.lock();
    if (map == nullptr) {
        call.violation("the zones of this node map are gone");
        return;
    }
    constexpr std::int64_t widestNode = std::numeric_limits<std::int32_t>::max();
    if (!isInRange(element, map->elementCount()) || !isInRange(corner, map->cornerCount()) ||
        !isInRange(node, map->nodeCount()) || node > widestNode)
        call.violation("element, corner or node is outside the zone");
    else
        map->set(element, corner, static_cast<std::int32_t>(node));
}

} // extern "C"
