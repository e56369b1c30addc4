#include "model/NodeMap.h"

#include <limits>

namespace quorvia::host {

bool NodeMap::prepare() {
    if (block_)
        return true;
    const std::int64_t elementBytes =
        cornerCount_ * static_cast<std::int64_t>(sizeof(std::int32_t));
    if (elementCount_ > std::numeric_limits<std::int64_t>::max() / elementBytes)
        return false;
    block_ = ValueBlock::zeroed(elementCount_ * elementBytes);
    return static_cast<bool>(block_);
}

void NodeMap::set(std::int64_t element, std::int32_t corner, std::int32_t node) {
    static_cast<std::int32_t*>(block_.data())[(element - 1) * cornerCount_ + corner - 1] = node;
}

const std::int32_t* NodeMap::nodes() const {
    return static_cast<const std::int32_t*>(block_.data());
}

} // namespace quorvia::host
