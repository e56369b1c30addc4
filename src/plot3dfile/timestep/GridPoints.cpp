#include "plot3dfile/timestep/GridPoints.h"

#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/numbers/IndexRange.h"
#include "plot3dfile/numbers/TypedArrays.h"

namespace quorvia::quorutildataio {

namespace {

constexpr Plot3DIndexRange_s onlyIndex = {1, 1, 1};

bool leavesOut(const Plot3DIndexRange_s& resolved, std::int32_t n) {
    return resolved.start > 1 || resolved.end < n || resolved.skip > 1;
}

std::optional<std::int64_t> product(std::int64_t i, std::int64_t j, std::int64_t k) {
    CheckedSize size;
    size.addProduct({i, j, k});
    return size.value();
}

} // namespace

Plot3DGridRanges_s resolveGridRanges(const Plot3DIndexRange_s& iRange,
                                     const Plot3DIndexRange_s& jRange,
                                     const Plot3DIndexRange_s& kRange, const Plot3DGridDims_s& dims,
                                     bool isUnstructured) {
    if (isUnstructured)
        return {{1, dims.i, 1}, onlyIndex, onlyIndex, false};
    Plot3DGridRanges_s ranges = {resolveIndexRange(iRange, dims.i),
                                 resolveIndexRange(jRange, dims.j),
                                 resolveIndexRange(kRange, dims.k), false};
    ranges.isSubset =
        leavesOut(ranges.i, dims.i) || leavesOut(ranges.j, dims.j) || leavesOut(ranges.k, dims.k);
    return ranges;
}

Plot3DGridRanges_s resolveGridRanges(const Plot3DLoadOptions_s& options, const Plot3DFile_s& file,
                                     std::int32_t gridIndex) {
    return resolveGridRanges(options.iRange, options.jRange, options.kRange,
                             file.gridDims[static_cast<std::size_t>(gridIndex)],
                             file.dataStructure == Plot3DDataStructure_Unstructured);
}

std::optional<std::int64_t> countUpToEnds(const Plot3DGridRanges_s& ranges) {
    return product(ranges.i.end, ranges.j.end, ranges.k.end);
}

std::optional<std::int64_t> countSelected(const Plot3DGridRanges_s& ranges) {
    return product(countInRange(ranges.i), countInRange(ranges.j), countInRange(ranges.k));
}

} // namespace quorvia::quorutildataio
