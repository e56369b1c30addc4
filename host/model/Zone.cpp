#include "model/Zone.h"

#include <algorithm>

namespace quorvia::host {

FieldState Field::state() const {
    if (storage == nullptr)
        return FieldState::Empty;
    return storage->isDeferred() ? FieldState::Deferred : FieldState::Stored;
}

std::int64_t Zone::valueCount(std::int32_t location) const {
    const bool isNodal = location == QuorValueLocation_Nodal;
    if (!isOrdered())
        return isNodal ? i : j;
    if (isNodal)
        return i * j * k;
    const auto cells = [](std::int64_t points) { return std::max<std::int64_t>(points - 1, 1); };
    return cells(i) * cells(j) * cells(k);
}

} // namespace quorvia::host
