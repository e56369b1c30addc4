#include "model/ValueBlock.h"

#include <cstddef>
#include <cstdlib>

namespace quorvia::host {

namespace {

// The allocator may answer a request for nothing with null, which would read as no memory.
std::size_t bytesToRequest(std::int64_t byteCount) {
    return byteCount > 0 ? static_cast<std::size_t>(byteCount) : 1;
}

} // namespace

void ValueBlock::Free::operator()(void* bytes) const {
    std::free(bytes);
}

ValueBlock ValueBlock::zeroed(std::int64_t byteCount) {
    if (byteCount < 0)
        return {};
    return ValueBlock(std::calloc(bytesToRequest(byteCount), 1), byteCount);
}

ValueBlock ValueBlock::uninitialised(std::int64_t byteCount) {
    if (byteCount < 0)
        return {};
    return ValueBlock(std::malloc(bytesToRequest(byteCount)), byteCount);
}

} // namespace quorvia::host
