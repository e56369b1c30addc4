#include "dataset/items/ItemContext.h"

namespace quorvia::quorutildataio {

namespace {

/// A byte of UTF-8 behind the first of its character.
bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

Plot3DItemContext_s makeItemContext(const Plot3DLoadOptions_s& options,
                                    std::int32_t firstZoneOfLoad, std::int32_t firstZone) {
    const bool hasTimedFiles = !options.solutionFiles.empty() || !options.functionFiles.empty();
    return {.iRange = options.iRange,
            .jRange = options.jRange,
            .kRange = options.kRange,
            .firstZoneOfLoad = firstZoneOfLoad,
            .firstZone = firstZone,
            .firstVar = 1,
            .solutionTimes = &options.solutionTimes,
            .extractTimes = options.extractTimeFromSolFileNames && hasTimedFiles};
}

std::string_view fileTail(std::string_view path) {
    constexpr std::int32_t tailLength = 17;
    std::size_t start = path.size();
    for (std::int32_t characters = 0; start > 0 && characters < tailLength;)
        characters += continuesCharacter(path[--start]) ? 0 : 1;
    return path.substr(start);
}

} // namespace quorvia::quorutildataio
