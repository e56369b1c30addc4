#include "model/Zone.h"

#include <algorithm>

namespace quorvia::host {

FieldState_e Field_s::state() const {
    if (storage == nullptr)
        return FieldState_e::Empty;
    return storage->isDeferred() ? FieldState_e::Deferred : FieldState_e::Stored;
}

std::int64_t Zone_s::valueCount(std::int32_t location) const {
    const bool isNodal = location == QuorValueLocation_Nodal;
    if (!isOrdered())
        return isNodal ? i : j;
    if (isNodal)
        return i * j * k;
    const auto cells = [](std::int64_t points) { return std::max<std::int64_t>(points - 1, 1); };
    return cells(i) * cells(j) * cells(k);
}

} // namespace quorvia::host
