#include "plot3dwriter/FileDescription.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "plot3dwriter/RecordSizes.h"

namespace quorvia::plot3dwriter {

namespace {

bool isSolution(FileKind_e kind) {
    return kind != FileKind_e::Grid && kind != FileKind_e::Function;
}

std::int32_t directionCount(Layout_e layout) {
    if (layout == Layout_e::OneD)
        return 1;
    return layout == Layout_e::TwoD ? 2 : 3;
}

bool isThreeD(Layout_e layout) {
    return layout == Layout_e::ThreeDWhole || layout == Layout_e::ThreeDPlanes;
}

std::string findPropertyFault(const FileDescription_s& description) {
    const Layout_e layout = description.layout;
    if (description.kind == FileKind_e::OverflowSolution && !isThreeD(layout))
        return "an Overflow solution must be 3-D";
    if (description.kind == FileKind_e::SwiftSolution && layout == Layout_e::Unstructured)
        return "a Swift solution can't be unstructured";
    if (description.isMultiGrid && layout == Layout_e::OneD)
        return "a 1-D file can't be multi-grid";
    if (description.hasIBlank && description.kind != FileKind_e::Grid)
        return "only a grid file has I-blank";
    if (description.hasIBlank && (layout == Layout_e::OneD || layout == Layout_e::Unstructured))
        return "a 1-D or unstructured file has no I-blank";
    if (description.grids.empty())
        return "a file needs at least one grid";
    if (!description.isMultiGrid && description.grids.size() != 1)
        return "a single-grid file has exactly one grid, found " +
               std::to_string(description.grids.size());
    if (variableCount(description) < 1)
        return "a file needs at least one variable";
    if (description.numSpecies < 0)
        return "the count of species can't be negative";
    return "";
}

std::string findFunctionFault(const FileDescription_s& description) {
    if (!description.value)
        return "the values have no source";
    if (description.hasIBlank && !description.iblank)
        return "the I-blank values have no source";
    if (description.kind == FileKind_e::Grid && description.layout == Layout_e::Unstructured &&
        !description.corner)
        return "the connectivity has no source";
    return "";
}

std::string findDimensionFault(const FileDescription_s& description, const GridDims_s& grid) {
    const std::string found = "found " + std::to_string(grid.i) + " x " + std::to_string(grid.j) +
                              " x " + std::to_string(grid.k);
    if (description.layout == Layout_e::Unstructured) {
        if (description.kind != FileKind_e::Grid)
            return grid.i < 1 ? "needs at least one node, " + found : "";
        const bool surface = grid.j >= 1 && grid.k == 0;
        const bool volume = grid.j == 0 && grid.k >= 1;
        if (grid.i < 1 || !(surface || volume))
            return "needs nodes, and triangles or tetrahedra but not both, " + found;
        return "";
    }
    if (grid.i < 1 || grid.j < 1 || grid.k < 1)
        return "needs at least one point in each direction, " + found;
    if (description.layout == Layout_e::OneD && (grid.j != 1 || grid.k != 1))
        return "of a 1-D file must be i x 1 x 1, " + found;
    if (description.layout == Layout_e::TwoD && grid.k != 1)
        return "of a 2-D file must be i x j x 1, " + found;
    return "";
}

std::string findGridFault(const FileDescription_s& description, const FileForm_s& form) {
    std::size_t gridNumber = 0;
    for (const GridDims_s& grid : description.grids) {
        ++gridNumber;
        std::string fault = findDimensionFault(description, grid);
        const std::int64_t records = description.layout == Layout_e::ThreeDPlanes ? grid.k : 1;
        // Twice the data leave room for markers and scalars.
        if (fault.empty() && !checkedProduct(dataBytes(description, form, grid), 2 * records))
            fault = "is too large for 64-bit file positions";
        if (!fault.empty())
            return "grid " + std::to_string(gridNumber) + " " + fault;
    }
    return "";
}

bool isWholeNumber(double value) {
    return value == std::floor(value) && value >= std::numeric_limits<std::int32_t>::min() &&
           value <= std::numeric_limits<std::int32_t>::max();
}

std::string findScalarFault(const FileDescription_s& description, const FileForm_s& form) {
    if (!isSolution(description.kind))
        return "";
    const auto expected = static_cast<std::size_t>(scalarCount(description));
    const bool isOverflow = description.kind == FileKind_e::OverflowSolution;
    const bool mayHaveMore = isOverflow && form.encoding == Encoding_e::Fortran;
    if (description.scalars.size() != description.grids.size())
        return "each grid needs its scalars, found " + std::to_string(description.scalars.size()) +
               " lists for " + std::to_string(description.grids.size()) + " grids";
    for (const std::vector<double>& scalars : description.scalars) {
        if (scalars.size() < expected || (scalars.size() > expected && !mayHaveMore))
            return "a grid has " + std::to_string(scalars.size()) + " scalars, expected " +
                   std::to_string(expected);
        if (isOverflow && !isWholeNumber(scalars[overflowIntegerIndex]))
            return "scalar 8 of an Overflow solution must be a 32-bit whole number";
    }
    return "";
}

std::string findFormFault(const FileDescription_s& description, const FileForm_s& form) {
    if (form.encoding == Encoding_e::Text && description.isHole)
        return "a text file can't have holes";
    if (form.encoding == Encoding_e::Text && form.text.tokensPerLine < 1)
        return "a line of text needs at least one token";
    if (form.encoding == Encoding_e::Text &&
        (form.text.significantDigits < 0 || form.text.significantDigits > 25))
        return "reals in text have 1 to 25 digits, or 0 for as many as needed";
    if (form.encoding == Encoding_e::Fortran && form.markerBytes != 4 && form.markerBytes != 8)
        return "a record marker has 4 or 8 bytes, found " + std::to_string(form.markerBytes);
    if (form.encoding == Encoding_e::Fortran &&
        (form.maxSegmentBytes < 1 || form.maxSegmentBytes > longestFortranSegment))
        return "a segment has 1 to " + std::to_string(longestFortranSegment) + " bytes, found " +
               std::to_string(form.maxSegmentBytes);
    return "";
}

} // namespace

// Without a default, so that the compiler asks for a kind that is added.

bool isCountOfEachGrid(FileKind_e kind) {
    switch (kind) {
    case FileKind_e::Function:
        return true;
    case FileKind_e::Grid:
    case FileKind_e::ClassicSolution:
    case FileKind_e::SwiftSolution:
    case FileKind_e::OverflowSolution:
        break;
    }
    return false;
}

std::int32_t variableCount(const FileDescription_s& description) {
    switch (description.kind) {
    case FileKind_e::OverflowSolution:
    case FileKind_e::Function:
        return description.numVars;
    case FileKind_e::Grid:
        return directionCount(description.layout);
    case FileKind_e::ClassicSolution:
    case FileKind_e::SwiftSolution:
        break;
    }
    // Density and energy stand on either side of the momentum.
    return directionCount(description.layout) + 2;
}

std::int32_t scalarCount(const FileDescription_s& description) {
    constexpr std::int32_t ofClassic = 4; // and of any solution in 1-D
    const bool isLine = description.layout == Layout_e::OneD;
    switch (description.kind) {
    case FileKind_e::Grid:
    case FileKind_e::Function:
        return 0;
    case FileKind_e::SwiftSolution:
        return isLine ? ofClassic : 5;
    case FileKind_e::OverflowSolution:
        return isLine ? ofClassic : 11 + std::max(description.numSpecies, 2);
    case FileKind_e::ClassicSolution:
        break;
    }
    return ofClassic;
}

std::int64_t pointCount(const FileDescription_s& description, const GridDims_s& grid) {
    if (description.layout == Layout_e::Unstructured)
        return grid.i;
    return std::int64_t{grid.i} * grid.j * grid.k;
}

std::string findFault(const FileDescription_s& description, const FileForm_s& form) {
    std::string fault = findPropertyFault(description);
    if (fault.empty())
        fault = findFunctionFault(description);
    if (fault.empty())
        fault = findFormFault(description, form);
    if (fault.empty())
        fault = findGridFault(description, form);
    if (fault.empty())
        fault = findScalarFault(description, form);
    return fault;
}

} // namespace quorvia::plot3dwriter
