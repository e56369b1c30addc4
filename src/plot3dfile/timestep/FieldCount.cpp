#include "plot3dfile/timestep/FieldCount.h"

#include <algorithm>

namespace quorvia::quorutildataio {

namespace {

bool isAbsentOrPlausible(const Plot3DFile_s* file) {
    return file == nullptr || (isFieldCountPlausible(*file) && isElementCountPlausible(*file));
}

} // namespace

std::int64_t fieldCountLimit(const Plot3DFile_s& file) {
    if (file.encoding == Plot3DEncoding_Ascii)
        return std::max<std::int64_t>(file.fileSize, 1000);
    return file.fileSize / (file.isDoublePrecision ? 8 : 4);
}

bool isFieldCountPlausible(const Plot3DFile_s& file) {
    // The product of two 32-bit counts fits into 64 bits.
    const std::int64_t fields = std::int64_t{file.numVars} * std::max(file.numGrids, 0);
    return file.numVars >= 0 && fields <= fieldCountLimit(file);
}

bool isElementCountPlausible(const Plot3DFile_s& file) {
    if (file.dataStructure != Plot3DDataStructure_Unstructured || file.isSolutionOrFunction)
        return true;
    constexpr std::int64_t bytesOfElement = 16;
    const std::int64_t limit = file.encoding == Plot3DEncoding_Ascii
                                   ? fieldCountLimit(file)
                                   : file.fileSize / bytesOfElement;
    std::int64_t elements = 0; // 2^31 grids of 2^32 elements fit into 64 bits
    for (std::int32_t grid = 0; grid < file.numGrids; ++grid) {
        const Plot3DGridDims_s& dims = file.gridDims[static_cast<std::size_t>(grid)];
        elements += std::int64_t{dims.j} + dims.k;
    }
    return elements <= limit;
}

bool areCountsPlausible(const Plot3DFileHandler& handler) {
    return isAbsentOrPlausible(handler.gridFile) && isAbsentOrPlausible(handler.solutionFile) &&
           std::all_of(handler.functionFiles.begin(), handler.functionFiles.end(),
                       isAbsentOrPlausible);
}

} // namespace quorvia::quorutildataio
