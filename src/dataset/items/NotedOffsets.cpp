#include "dataset/items/NotedOffsets.h"

#include <algorithm>

namespace quorvia::quorutildataio {

namespace {

constexpr std::int64_t notNoted = -1;

bool hasEntry(const Plot3DOffsets& offsets, std::int64_t entry) {
    return entry >= 0 && entry < offsets.count();
}

} // namespace

bool allocateOffsets(Plot3DOffsets& offsets, std::int64_t count, const char* label) {
    offsets = Plot3DOffsets::allocate(count, label);
    std::fill(offsets.begin(), offsets.end(), notNoted);
    return static_cast<bool>(offsets);
}

bool copyOffsets(const Plot3DOffsets& source, Plot3DOffsets& offsets, std::int64_t count,
                 const char* label) {
    if (source.count() < count || !allocateOffsets(offsets, count, label))
        return false;
    std::copy_n(source.begin(), count, offsets.begin());
    return true;
}

bool allocateFunctionOffsets(Plot3DFile_s& file, std::int32_t gridCount) {
    return allocateOffsets(file.varOffsets, std::int64_t{file.numVars} * gridCount,
                           "Primary Function Offset Array");
}

void noteOffset(const Plot3DOffsets& offsets, std::int64_t entry, std::int64_t position) {
    if (hasEntry(offsets, entry))
        offsets[entry] = position;
}

std::optional<std::int64_t> notedOffset(const Plot3DOffsets& offsets, std::int64_t entry) {
    if (!hasEntry(offsets, entry) || offsets[entry] < 0)
        return std::nullopt;
    return offsets[entry];
}

} // namespace quorvia::quorutildataio
