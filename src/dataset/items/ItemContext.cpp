#include "dataset/items/ItemContext.h"

namespace quorvia::quorutildataio {

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

} // namespace quorvia::quorutildataio
