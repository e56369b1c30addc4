#include "plot3dfile/numbers/IndexRange.h"

#include <algorithm>
#include <array>
#include <cassert>

#include "plot3dfile/numbers/TypedArrays.h"
#include "plot3dfile/numbers/ValueDestination.h"
#include "plot3dfile/numbers/ValueRuns.h"

namespace quorvia::quorutildataio {

namespace {

// Reads one row of I values and stores the selected ones from `firstIndex` on, if the row itself
// is.
template <typename Number>
bool readRow(Plot3DFile_s& file, std::int64_t valueCount, const Plot3DIndexRange_s& iRange,
             bool isRowSelected, std::int64_t firstIndex, const ValueDestination& destination) {
    std::array<Number, longestRun> run;
    std::int64_t column = 0;
    for (std::int64_t done = 0; done < valueCount;) {
        const std::int64_t wanted = std::min(longestRun, valueCount - done);
        const std::int64_t got = readRun(file, wanted, run.data());
        for (std::int64_t index = 0; isRowSelected && index < got; ++index)
            if (isInRange(iRange, done + index + 1))
                destination.store(firstIndex + column++, run[static_cast<std::size_t>(index)]);
        if (got < wanted)
            return false;
        done += got;
    }
    return true;
}

struct PlaneShape_s {
    std::int64_t i;
    std::int64_t j;
    const Plot3DIndexRange_s& iRange;
    const Plot3DIndexRange_s& jRange;
};

bool readPlane(Plot3DFile_s& file, const PlaneShape_s& shape, bool isPlaneSelected,
               std::int64_t planeBase, bool isIBlank, const ValueDestination& destination) {
    const auto readOneRow = isIBlank ? readRow<std::int32_t> : readRow<double>;
    const std::int64_t selectedColumns = countInRange(shape.iRange);
    std::int64_t rowBase = 0;
    for (std::int64_t j = 1; j <= shape.j; ++j) {
        const bool isSelected = isInRange(shape.jRange, j);
        if (!readOneRow(file, shape.i, shape.iRange, isSelected && isPlaneSelected,
                        planeBase + rowBase, destination))
            return false;
        if (isSelected)
            rowBase += selectedColumns;
    }
    return true;
}

} // namespace

std::int64_t countInRange(const Plot3DIndexRange_s& range) {
    assert(range.skip >= 1);
    if (range.start == range.end)
        return 1;
    const std::int64_t length = std::int64_t{range.end} - range.start;
    const bool isEndOffStride = length % range.skip != 0;
    return length / range.skip + 1 + (isEndOffStride ? 1 : 0);
}

bool isInRange(const Plot3DIndexRange_s& range, std::int64_t index) {
    assert(range.skip >= 1);
    if (index < range.start || index > range.end)
        return false;
    return index == range.end || (index - range.start) % range.skip == 0;
}

bool readIndexRange(Plot3DFile_s& file, std::int32_t plane, std::int32_t i, std::int32_t j,
                    std::int32_t k, const Plot3DIndexRange_s& iRange,
                    const Plot3DIndexRange_s& jRange, const Plot3DIndexRange_s& kRange,
                    bool isIBlank, void* dest, QuorFieldSetFunction setValue) {
    constexpr std::int32_t allPlanes = -1;
    const ValueDestination destination(file, dest, setValue);
    const PlaneShape_s shape = {i, j, iRange, jRange};
    const std::int64_t selectedPoints = countInRange(iRange) * countInRange(jRange);
    std::int64_t planeBase = 0;
    for (std::int64_t planeNumber = 1; planeNumber <= k; ++planeNumber) {
        const bool isSelected = isInRange(kRange, planeNumber);
        const bool isHere = plane == allPlanes || planeNumber == std::int64_t{plane} + 1;
        if (isHere && !readPlane(file, shape, isSelected, planeBase, isIBlank, destination))
            return false;
        if (isSelected)
            planeBase += selectedPoints;
    }
    return true;
}

} // namespace quorvia::quorutildataio
