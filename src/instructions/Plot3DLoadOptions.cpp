#include "instructions/Plot3DLoadOptions.h"

namespace quorvia::quorutildataio {

namespace {

constexpr Plot3DIndexRange_s wholeRange = {1, 0, 1};

std::int32_t resolveIndex(std::int32_t index, std::int32_t n) {
    if (index > n)
        return n;
    if (std::int64_t{index} < -std::int64_t{n})
        return 1;
    return index < 1 ? index + n : index;
}

} // namespace

void setLoadOptionDefaults(Plot3DLoadOptions_s& options) {
    options.append = false;
    options.hasGridFiles = false;
    options.hasSolutionFiles = false;
    options.hasNameFile = false;
    options.loadBoundary = false;
    options.gridFiles.clear();
    options.solutionFiles.clear();
    options.functionFiles.clear();
    options.iRange = wholeRange;
    options.jRange = wholeRange;
    options.kRange = wholeRange;
    options.gridSet = nullptr;
    options.autoDetect = true;
    options.style = Plot3DStyle_Classic;
    options.isMultiGrid = true;
    options.dataStructure = Plot3DDataStructure_3DWhole;
    options.solutionsShareStructure = true;
    options.asciiIsDouble = false;
    options.asciiHasIBlank = false;
    options.assignStrandIds = true;
    options.assignStrandIdsRequested = true;
    options.addToExistingStrands = false;
    options.uniformGridStructure = true;
    options.assignNewStrandIdForEachTimeStep = true;
    options.extractTimeFromSolFileNames = false;
    options.solutionTimes.clear();
}

void releaseLoadOptions(Plot3DLoadOptions_s& options) {
    options.gridFiles.clear();
    options.solutionFiles.clear();
    options.functionFiles.clear();
    if (options.gridSet != nullptr)
        QuorUtilSetDealloc(&options.gridSet);
}

Plot3DIndexRange_s resolveIndexRange(Plot3DIndexRange_s range, std::int32_t n) {
    return {resolveIndex(range.start, n), resolveIndex(range.end, n), range.skip};
}

bool isGridSelected(QuorSetHandle gridSet, std::int64_t gridNumber) {
    return gridSet == nullptr || QuorUtilSetIsEmpty(gridSet) ||
           QuorUtilSetIsMember(gridSet, gridNumber);
}

bool hasSingleGridFile(const Plot3DLoadOptions_s& options) {
    return options.hasGridFiles && options.gridFiles.size() == 1;
}

bool hasUniformGrids(const Plot3DLoadOptions_s& options) {
    return options.uniformGridStructure || hasSingleGridFile(options);
}

} // namespace quorvia::quorutildataio
