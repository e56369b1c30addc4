#include "dataset/ItemContext.h"

namespace quorvia::quorutildataio {

Plot3DItemContext_s makeItemContext(const Plot3DLoadOptions_s& options,
                                    std::int32_t firstZoneOfLoad, std::int32_t firstZone) {
    const bool hasTimedFiles = !options.solutionFiles.empty() || !options.functionFiles.empty();
    return {options.iRange,
            options.jRange,
            options.kRange,
            firstZoneOfLoad,
            firstZone,
            1,
            &options.solutionTimes,
            options.extractTimeFromSolFileNames && hasTimedFiles};
}

std::string_view fileTail(std::string_view path) {
    constexpr std::size_t tailLength = 17;
    return path.size() > tailLength ? path.substr(path.size() - tailLength) : path;
}

} // namespace quorvia::quorutildataio
