#include "inspect/reading/TextAccount.h"

#include <algorithm>

#include "inspect/reading/Saturation.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t mostPlanes = 1'000'000; // a repeat count can promise billions
constexpr std::int64_t leastBytesOfNumber = 2;

bool holdsIntegers(const TextScan& scan, const Reading_s& reading) {
    std::int64_t index = headerValues(reading);
    for (std::size_t grid = 0; grid < reading.grids.size(); ++grid) {
        const GridBlocks_s blocks = blocksOf(reading, grid);
        index += blocks.scalars;
        if (blocks.planes > mostPlanes)
            return false;
        for (std::int64_t plane = 0; plane < blocks.planes; ++plane) {
            index += blocks.variables * blocks.planePoints;
            const std::int64_t integers = blocks.iBlanks * blocks.planePoints + blocks.connectivity;
            if (integers > 0 && !scan.areIntegers(index, integers))
                return false;
            index += integers;
        }
    }
    return true;
}

} // namespace

std::int64_t valuesOf(const Reading_s& reading) {
    const std::int64_t data = dataSize(reading, valueWidths());
    const std::int64_t header = headerValues(reading);
    return sum(data, header);
}

bool fitsExactly(const TextScan& scan, const Reading_s& reading) {
    return scan.valueCount() == valuesOf(reading) && scan.areIntegers(0, headerValues(reading)) &&
           holdsIntegers(scan, reading);
}

Account_s accountOfText(ExaminedFile& file, TextScan& scan, const Reading_s& reading) {
    Account_s account;
    const std::int64_t wanted = valuesOf(reading);
    const std::int64_t present = scan.valueCount();
    account.bytes.size = file.size();
    account.endOfTaken = file.size();
    if (present < wanted) {
        const std::int64_t missing = wanted - present;
        account.bytes.missing = std::min(missing, largest / 4) * leastBytesOfNumber;
        const std::int64_t offset = std::max<std::int64_t>(present - headerValues(reading), 0);
        account.shortfall = {placeInData(reading, valueWidths(), offset), file.size(), wanted,
                             present, 0};
    } else if (present > wanted) {
        account.numbersBehind = present - wanted;
        account.endOfTaken = scan.positionOf(wanted);
        account.bytes.surplus = file.size() - account.endOfTaken;
    }
    account.bytes.used = file.size() + account.bytes.missing - account.bytes.surplus;
    return account;
}

} // namespace plot3dlib
