#include "open/BoundaryRecords.h"

#include <limits>

#include "plot3dfile/bytes/CheckedSize.h"

namespace plot3dlib {

namespace {

using namespace quorvia::quorutildataio;

/// Of several function files the add-on gives a boundary the last one in the place of the first.
bool isOnlyFileOfItsVariables(const Plot3DBoundaryClientData_s& boundary, std::size_t variable,
                              std::size_t variableCount) {
    const Plot3DFile_s& file = *boundary.file;
    const auto behindIt =
        static_cast<std::int64_t>(variable) + 1 - boundary.varOrdinal + file.numVars;
    return file.style != Plot3DStyle_Function ||
           behindIt == static_cast<std::int64_t>(variableCount);
}

bool isNear(const Plot3DBoundaryClientData_s& boundary, const plot3d::Extent& grid) {
    CheckedSize ahead;
    ahead.addProduct({boundary.varOrdinal - 1, grid.i, grid.j, grid.k, realWidth(*boundary.file)});
    return ahead.value() && *ahead.value() <= std::numeric_limits<std::int32_t>::max();
}

} // namespace

std::optional<plot3d::Box> boxOf(const Plot3DBoundaryClientData_s& boundary) {
    if (boundary.skipI != 1 || boundary.skipJ != 1 || boundary.skipK != 1)
        return std::nullopt;
    const Plot3DBoundary_s& lines = *boundary.boundary;
    return plot3d::Box{{lines.iStart - 1, lines.iEnd - 1, 1},
                       {lines.jStart - 1, lines.jEnd - 1, 1},
                       {lines.kStart - 1, lines.kEnd - 1, 1}};
}

std::optional<plot3d::Extent> gridSizeOf(const Plot3DBoundaryClientData_s& boundary) {
    const auto grid = static_cast<std::size_t>(boundary.boundary->gridNumber - 1);
    if (grid >= boundary.file->gridDims.size())
        return std::nullopt;
    const Plot3DGridDims_s& dims = boundary.file->gridDims[grid];
    return plot3d::Extent{dims.i, dims.j, dims.k};
}

bool isFetchedRight(const Plot3DBoundaryClientData_s& boundary, std::size_t variable,
                    std::size_t variableCount) {
    const Plot3DFile_s& file = *boundary.file;
    const std::optional<plot3d::Extent> grid = gridSizeOf(boundary);
    if (!grid || !isOnlyFileOfItsVariables(boundary, variable, variableCount))
        return false;
    if (file.encoding == Plot3DEncoding_Ascii)
        return true;
    const bool isInPlanes = file.dataStructure == Plot3DDataStructure_3DPlanes && grid->k > 1;
    return !isInPlanes && file.segmentBoundaries.empty() && isNear(boundary, *grid);
}

} // namespace plot3dlib
