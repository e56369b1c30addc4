#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

bool joinsLoneGrid(const Plot3DLoadContext_s& context) {
    constexpr std::int32_t mostVarsOfGrid = 4; // X, Y, Z, IBlank
    const Plot3DFileHandler& first = context.fileSets.front();
    return context.options.append && first.hasSolutionFile() && !first.hasGridFile() &&
           context.shape.existingVarCount <= mostVarsOfGrid;
}

std::int32_t countSelectedGrids(const Plot3DLoadOptions_s& options,
                                const Plot3DFileHandler& fileSet) {
    const std::int32_t gridCount = fileSet.getNumGrids();
    if (options.gridSet == nullptr)
        return gridCount;
    std::int32_t selected = 0;
    for (std::int32_t gridIndex = 0; gridIndex < gridCount; ++gridIndex)
        if (isGridSelected(options.gridSet, std::int64_t{gridIndex} + 1))
            ++selected;
    return selected;
}

} // namespace quorvia::quorutildataio
