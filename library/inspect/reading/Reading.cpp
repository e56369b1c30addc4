#include "inspect/reading/Reading.h"

#include <algorithm>
#include <bit>

#include "inspect/reading/Saturation.h"
#include "plot3dfile/bytes/CheckedSize.h"
#include "plot3dfile/layout/StyleRules.h"

namespace plot3dlib {

namespace {

constexpr std::int64_t integersOfElement = 4;

std::int64_t product(std::int64_t a, std::int64_t b) {
    io::CheckedSize size;
    size.addProduct({a, b});
    return size.value().value_or(largest);
}

plot3d::Layout layoutOf(io::Plot3DDataStructure_e dataStructure) {
    switch (dataStructure) {
    case io::Plot3DDataStructure_1D:
        return plot3d::Layout::OneD;
    case io::Plot3DDataStructure_2D:
        return plot3d::Layout::TwoD;
    case io::Plot3DDataStructure_3DPlanes:
        return plot3d::Layout::ThreeDPlanes;
    case io::Plot3DDataStructure_Unstructured:
        return plot3d::Layout::Unstructured;
    case io::Plot3DDataStructure_3DWhole:
    case io::Plot3DDataStructure_Unknown:
        break;
    }
    return plot3d::Layout::ThreeDWhole;
}

plot3d::Style styleOf(io::Plot3DStyle_e style) {
    switch (style) {
    case io::Plot3DStyle_Function:
        return plot3d::Style::Function;
    case io::Plot3DStyle_Overflow:
        return plot3d::Style::Overflow;
    case io::Plot3DStyle_Swift:
        return plot3d::Style::Swift;
    case io::Plot3DStyle_Classic:
    case io::Plot3DStyle_Unknown:
        break;
    }
    return plot3d::Style::Classic;
}

std::int64_t dimensionCount(const Reading_s& reading) {
    switch (reading.dataStructure) {
    case io::Plot3DDataStructure_1D:
        return 1;
    case io::Plot3DDataStructure_2D:
        return 2;
    default:
        return 3;
    }
}

/// The order of blocks within a plane, counted in `unit` values or bytes.
Place_s fieldAt(const GridBlocks_s& blocks, const Widths_s& widths, std::int64_t offset) {
    const std::int64_t field = std::max<std::int64_t>(product(blocks.planePoints, widths.real), 1);
    Place_s place;
    const std::int64_t variable = offset / field;
    place.variable = static_cast<std::int32_t>(std::min(variable, blocks.variables));
    if (variable < blocks.variables)
        return place;
    const std::int64_t behind = offset - product(blocks.variables, field);
    const bool isIBlank =
        behind < product(blocks.iBlanks, product(blocks.planePoints, widths.integer));
    place.part = isIBlank || blocks.connectivity == 0 ? Part_e::IBlank : Part_e::Connectivity;
    if (place.part == Part_e::IBlank && blocks.iBlanks == 0) {
        place.part = Part_e::Variable; // behind the last one
        place.variable = static_cast<std::int32_t>(std::max<std::int64_t>(blocks.variables - 1, 0));
    }
    return place;
}

} // namespace

Reading_s readingOf(const io::Plot3DFile_s& file) {
    Reading_s reading;
    static_cast<io::Plot3DFileStructure_s&>(reading) = file;
    if (reading.dataStructure == io::Plot3DDataStructure_1D)
        reading.numGrids = 1; // its header does not tell
    const auto count = std::clamp<std::int64_t>(reading.numGrids, 0, std::ssize(file.gridDims));
    reading.grids.assign(file.gridDims.begin(), file.gridDims.begin() + count);
    return reading;
}

plot3d::FileKind kindOf(const io::Plot3DFileStructure_s& structure) {
    if (!structure.isSolutionOrFunction)
        return plot3d::FileKind::Grid;
    return structure.style == io::Plot3DStyle_Function ? plot3d::FileKind::Function
                                                       : plot3d::FileKind::Solution;
}

std::optional<plot3d::ByteOrder> byteOrderOf(const io::Plot3DRecordForm_s& form) {
    if (form.encoding != io::Plot3DEncoding_Binary &&
        form.encoding != io::Plot3DEncoding_FortranUnformatted)
        return std::nullopt;
    const bool isBig = form.byteSwap == (std::endian::native == std::endian::little);
    return isBig ? plot3d::ByteOrder::Big : plot3d::ByteOrder::Little;
}

plot3d::Candidate candidateOf(const io::Plot3DFileStructure_s& structure) {
    plot3d::Candidate candidate;
    candidate.kind = kindOf(structure);
    candidate.layout = layoutOf(structure.dataStructure);
    if (structure.isSolutionOrFunction)
        candidate.style = styleOf(structure.style);
    candidate.multiGrid = structure.isMultiGrid;
    candidate.iBlank = structure.hasIBlank;
    candidate.precision = structure.isDoublePrecision ? 64 : 32;
    candidate.byteOrder = byteOrderOf(structure);
    candidate.relaxed = structure.relaxedChecks;
    return candidate;
}

GridBlocks_s blocksOf(const Reading_s& reading, std::size_t gridIndex) {
    const io::Plot3DGridDims_s& dims = reading.grids[gridIndex];
    GridBlocks_s blocks;
    blocks.scalars = reading.numScalars;
    blocks.variables = std::max(reading.numVars, 0);
    blocks.iBlanks = reading.hasIBlank ? 1 : 0;
    if (reading.dataStructure == io::Plot3DDataStructure_Unstructured) {
        blocks.planePoints = dims.i;
        if (!reading.isSolutionOrFunction)
            blocks.connectivity = integersOfElement * (std::int64_t{dims.j} + dims.k);
        return blocks;
    }
    const std::int64_t plane = std::int64_t{dims.i} * dims.j;
    const bool hasPlanes = reading.dataStructure == io::Plot3DDataStructure_3DPlanes;
    blocks.planes = hasPlanes ? dims.k : 1;
    blocks.planePoints = hasPlanes ? plane : product(plane, dims.k);
    return blocks;
}

Widths_s valueWidths() {
    return {};
}

Widths_s byteWidths(const Reading_s& reading) {
    const std::int64_t real = io::realWidth(reading);
    const bool hasSpecies =
        io::styleRules(reading.style).hasSpecies && reading.isSolutionOrFunction;
    return {real, io::integerWidth, hasSpecies ? real - io::integerWidth : 0};
}

std::int64_t scalarSize(const GridBlocks_s& blocks, const Widths_s& widths) {
    return product(blocks.scalars, widths.real) - (blocks.scalars > 0 ? widths.overflowSaving : 0);
}

std::int64_t planeSize(const GridBlocks_s& blocks, const Widths_s& widths) {
    const std::int64_t reals = product(product(blocks.variables, blocks.planePoints), widths.real);
    const std::int64_t iBlanks =
        product(product(blocks.iBlanks, blocks.planePoints), widths.integer);
    return sum(sum(reals, iBlanks), product(blocks.connectivity, widths.integer));
}

std::int64_t gridSize(const GridBlocks_s& blocks, const Widths_s& widths) {
    return sum(scalarSize(blocks, widths), product(blocks.planes, planeSize(blocks, widths)));
}

std::int64_t dataSize(const Reading_s& reading, const Widths_s& widths) {
    std::int64_t size = 0;
    for (std::size_t grid = 0; grid < reading.grids.size(); ++grid)
        size = sum(size, gridSize(blocksOf(reading, grid), widths));
    return size;
}

Place_s placeInPlane(const GridBlocks_s& blocks, const Widths_s& widths, std::int64_t offset) {
    return fieldAt(blocks, widths, offset);
}

Place_s placeInData(const Reading_s& reading, const Widths_s& widths, std::int64_t offset) {
    std::size_t grid = 0;
    while (grid + 1 < reading.grids.size()) {
        const std::int64_t size = gridSize(blocksOf(reading, grid), widths);
        if (offset < size)
            break;
        offset -= size;
        ++grid;
    }
    const GridBlocks_s blocks = blocksOf(reading, grid);
    const std::int64_t behindScalars = offset - scalarSize(blocks, widths);
    Place_s place{Part_e::Scalars, 0, 0, -1};
    if (behindScalars >= 0) {
        const std::int64_t plane = std::max<std::int64_t>(planeSize(blocks, widths), 1);
        const std::int64_t planeIndex = std::min(behindScalars / plane, blocks.planes - 1);
        place = placeInPlane(blocks, widths, behindScalars - planeIndex * plane);
        if (reading.dataStructure == io::Plot3DDataStructure_3DPlanes)
            place.plane = planeIndex;
    }
    place.grid = static_cast<std::int32_t>(grid);
    return place;
}

std::int64_t headerValues(const Reading_s& reading) {
    const io::StyleRules_s& rules = io::styleRulesOf(reading);
    const bool countsInGrids = rules.variableCount == io::VariableCount_e::OfEachGrid;
    const bool countsInFile = rules.variableCount == io::VariableCount_e::OfFile;
    const std::int64_t perGrid = dimensionCount(reading) + (countsInGrids ? 1 : 0);
    return (reading.isMultiGrid ? 1 : 0) + perGrid * std::ssize(reading.grids) +
           (countsInFile ? 2 : 0);
}

std::int32_t headerRecords(const Reading_s& reading) {
    return reading.isMultiGrid ? 2 : 1;
}

} // namespace plot3dlib
