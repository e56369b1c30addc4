#include "model/FieldStorage.h"

#include "model/FieldCache.h"

namespace quorvia::host {

std::int64_t valueWidth(std::int32_t type) {
    switch (type) {
    case QuorFieldDataType_Float:
    case QuorFieldDataType_Int32:
        return 4;
    case QuorFieldDataType_Double:
        return 8;
    default:
        return 0;
    }
}

std::shared_ptr<FieldStorage> FieldStorage::stored(std::int32_t type, std::int64_t valueCount) {
    auto storage = std::make_shared<FieldStorage>(Key_s(), type, valueCount);
    storage->block_ = ValueBlock::zeroed(storage->byteCount());
    return storage->block_ ? storage : nullptr;
}

FieldStorage::~FieldStorage() {
    leaveCache();
}

void FieldStorage::leaveCache() {
    if (cache_ != nullptr)
        cache_->forget(*this);
}

} // namespace quorvia::host
