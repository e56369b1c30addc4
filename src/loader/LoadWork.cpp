#include "loader/LoadWork.h"

#include <algorithm>
#include <limits>

namespace quorvia::quorutildataio {

namespace {

// A weight that passes 64 bits comes from counts in a damaged file; the bar then has the largest.
constexpr std::int64_t largestWeight = std::numeric_limits<std::int64_t>::max();

std::int64_t saturatingSum(std::int64_t a, std::int64_t b) {
    return a > largestWeight - b ? largestWeight : a + b;
}

std::int64_t saturatingProduct(std::int64_t a, std::int64_t b) {
    return b != 0 && a > largestWeight / b ? largestWeight : a * b;
}

/// A count from a file as a weight; a negative one weighs nothing.
std::int64_t weightOf(std::int64_t count) {
    return std::max<std::int64_t>(count, 0);
}

/// Zones of a time step, or K planes if the files hold planes.
std::int64_t zonesOf(const Plot3DFileHandler& fileSet) {
    const std::int32_t gridCount = fileSet.getNumGrids();
    if (fileSet.getDataStructure() != Plot3DDataStructure_3DPlanes)
        return weightOf(gridCount);
    std::int64_t planes = 0;
    for (std::int32_t gridIndex = 0; gridIndex < gridCount; ++gridIndex)
        planes = saturatingSum(planes, weightOf(fileSet.getGridDims(gridIndex).k));
    return planes;
}

} // namespace

std::int64_t estimateLoadWork(const Plot3DLoadContext_s& context) {
    const std::int64_t varsPerZone = weightOf(context.shape.gridAndSolutionVarCount());
    const std::int64_t functionVars = weightOf(context.shape.numFunctionVars);
    if (hasUniformGrids(context.options)) {
        const Plot3DFileHandler& first = context.fileSets.front();
        const auto functionFiles = static_cast<std::int64_t>(first.functionFiles.size());
        const std::int64_t vars =
            saturatingSum(varsPerZone, saturatingProduct(functionVars, functionFiles));
        return saturatingProduct(saturatingProduct(zonesOf(first), vars),
                                 static_cast<std::int64_t>(context.fileSets.size()));
    }
    std::int64_t work = 0;
    for (const Plot3DFileHandler& fileSet : context.fileSets)
        work = saturatingSum(
            work, saturatingProduct(zonesOf(fileSet), saturatingSum(varsPerZone, functionVars)));
    return work;
}

} // namespace quorvia::quorutildataio
