#include "plot3dfile/timestep/FieldCount.h"

#include <algorithm>
#include <optional>

#include "plot3dfile/bytes/CheckedSize.h"

namespace quorvia::quorutildataio {

namespace {

bool isPlausible(const Plot3DFile_s& file) {
    return isFieldCountPlausible(file) && isElementCountPlausible(file);
}

/// Numbers of the elements of an unstructured grid file, those that are read and ignored included.
constexpr std::int64_t integersOfElement = 4;

void addValuesOfGrid(const Plot3DFile_s& file, const Plot3DGridDims_s& dims, CheckedSize& values) {
    const std::int64_t fields = std::int64_t{std::max(file.numVars, 0)} + (file.hasIBlank ? 1 : 0);
    values.addProduct({file.numScalars});
    if (file.dataStructure != Plot3DDataStructure_Unstructured) {
        values.addProduct({fields, dims.i, dims.j, dims.k});
        return;
    }
    values.addProduct({fields, dims.i});
    if (!file.isSolutionOrFunction)
        values.addProduct({integersOfElement, std::int64_t{dims.j} + dims.k});
}

} // namespace

std::int64_t fieldCountLimit(const Plot3DFile_s& file) {
    if (file.encoding == Plot3DEncoding_Ascii)
        return std::max<std::int64_t>(file.fileSize, 1000);
    return file.fileSize / realWidth(file);
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

const Plot3DFile_s* findImplausibleFile(const Plot3DFileHandler& handler) {
    for (const Plot3DFile_s* file : {handler.gridFile, handler.solutionFile})
        if (file != nullptr && !isPlausible(*file))
            return file;
    const auto bad = std::find_if_not(handler.functionFiles.begin(), handler.functionFiles.end(),
                                      [](const Plot3DFile_s* file) { return isPlausible(*file); });
    return bad != handler.functionFiles.end() ? *bad : nullptr;
}

bool areCountsPlausible(const Plot3DFileHandler& handler) {
    return findImplausibleFile(handler) == nullptr;
}

bool isValueCountPlausible(const Plot3DFile_s& file, std::int64_t fileBytes) {
    if (file.encoding != Plot3DEncoding_Ascii)
        return true;
    // A file that its list's first does not describe may have less than its count says.
    const auto grids = std::min<std::int64_t>(file.numGrids, std::ssize(file.gridDims));
    CheckedSize values;
    for (std::int64_t grid = 0; grid < grids; ++grid)
        addValuesOfGrid(file, file.gridDims[static_cast<std::size_t>(grid)], values);
    const std::optional<std::int64_t> promised = values.value();
    return promised && *promised <= mostValuesPerByte * fileBytes;
}

} // namespace quorvia::quorutildataio
