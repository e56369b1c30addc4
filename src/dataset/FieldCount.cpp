#include "dataset/FieldCount.h"

#include <algorithm>

namespace quorvia::quorutildataio {

namespace {

bool isAbsentOrPlausible(const Plot3DFile_s* file) {
    return file == nullptr || isFieldCountPlausible(*file);
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

bool areFieldCountsPlausible(const Plot3DFileHandler& handler) {
    return isAbsentOrPlausible(handler.gridFile) && isAbsentOrPlausible(handler.solutionFile) &&
           std::all_of(handler.functionFiles.begin(), handler.functionFiles.end(),
                       isAbsentOrPlausible);
}

} // namespace quorvia::quorutildataio
