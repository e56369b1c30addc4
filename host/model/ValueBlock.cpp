#include "model/ValueBlock.h"

#include <cstddef>
#include <cstdlib>

namespace quorvia::host {

namespace {

bool isPossible(std::int64_t byteCount) {
    return byteCount >= 0 && byteCount <= ValueBlock::largest;
}

// The allocator may answer a request for nothing with null, which would read as no memory.
std::size_t bytesToRequest(std::int64_t byteCount) {
    return byteCount > 0 ? static_cast<std::size_t>(byteCount) : 1;
}

} // namespace

void ValueBlock::Free::operator()(void* bytes) const {
    std::free(bytes);
}

ValueBlock ValueBlock::zeroed(std::int64_t byteCount) {
    if (!isPossible(byteCount))
        return {};
    return ValueBlock(std::calloc(bytesToRequest(byteCount), 1), byteCount);
}

ValueBlock ValueBlock::uninitialised(std::int64_t byteCount) {
    if (!isPossible(byteCount))
        return {};
    return ValueBlock(std::malloc(bytesToRequest(byteCount)), byteCount);
}

} // namespace quorvia::host
