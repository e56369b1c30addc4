#include "acceptance/matrix/MatrixCase.h"

#include <ostream>

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

constexpr bool noAndYes[] = {false, true};

bool isThreeD(Layout_e layout) {
    return layout == Layout_e::ThreeDWhole || layout == Layout_e::ThreeDPlanes;
}

bool exists(const LayoutCase_s& layout) {
    const bool isLine = layout.layout == Layout_e::OneD;
    const bool isUnstructured = layout.layout == Layout_e::Unstructured;
    if (layout.kind == FileKind_e::OverflowSolution && !isThreeD(layout.layout))
        return false;
    if (layout.kind == FileKind_e::SwiftSolution && isUnstructured)
        return false;
    if (layout.hasIBlank && (layout.kind != FileKind_e::Grid || isLine || isUnstructured))
        return false;
    return !(layout.isMultiGrid && isLine);
}

// Sizes are unequal primes. The first grid has more than two planes: with two, a record of one
// plane of 64-bit reals is as long as a record of the whole grid in 32-bit reals.
std::vector<GridDims_s> gridsOf(const LayoutCase_s& layout) {
    std::vector<GridDims_s> grids;
    switch (layout.layout) {
    case Layout_e::OneD:
        return {{13, 1, 1}};
    case Layout_e::TwoD:
        grids = {{5, 3, 1}, {3, 7, 1}, {11, 2, 1}};
        break;
    case Layout_e::Unstructured:
        grids = {{7, 0, 3}, {5, 2, 0}, {11, 0, 13}};
        break;
    default:
        grids = {{2, 3, 5}, {5, 2, 3}, {3, 7, 2}};
    }
    if (!layout.isMultiGrid)
        grids.resize(1);
    return grids;
}

std::vector<double> scalarsOf(std::int32_t grid, std::int32_t count) {
    std::vector<double> scalars = {0.5 + grid, 2.25, 1500000.0, 0.25 + grid};
    for (std::int32_t place = 5; place <= count; ++place)
        scalars.push_back(place == 8 ? 42.0 + grid : place + 0.1);
    scalars.resize(static_cast<std::size_t>(count));
    return scalars;
}

std::string nameOf(FileKind_e kind) {
    switch (kind) {
    case FileKind_e::Grid:
        return "Grid";
    case FileKind_e::ClassicSolution:
        return "Classic";
    case FileKind_e::SwiftSolution:
        return "Swift";
    case FileKind_e::OverflowSolution:
        return "Overflow";
    case FileKind_e::Function:
        break; // the compiler asks for every kind
    }
    return "Function";
}

std::string nameOf(Layout_e layout) {
    switch (layout) {
    case Layout_e::OneD:
        return "1D";
    case Layout_e::TwoD:
        return "2D";
    case Layout_e::ThreeDWhole:
        return "3DWhole";
    case Layout_e::ThreeDPlanes:
        return "3DPlanes";
    default:
        return "Unstructured";
    }
}

} // namespace

std::vector<LayoutCase_s> everyLayout() {
    std::vector<LayoutCase_s> layouts;
    for (const FileKind_e kind : everyKind)
        for (const Layout_e dimension : everyDimension)
            for (const bool isMultiGrid : noAndYes)
                for (const bool hasIBlank : noAndYes) {
                    const LayoutCase_s layout = {kind, dimension, isMultiGrid, hasIBlank};
                    if (exists(layout))
                        layouts.push_back(layout);
                }
    return layouts;
}

std::vector<MatrixCase_s> everyCase() {
    std::vector<MatrixCase_s> cases;
    for (const LayoutCase_s& layout : everyLayout())
        for (const FileForm_s& form : everyForm())
            cases.push_back({layout, form});
    return cases;
}

std::string nameOf(const LayoutCase_s& layout) {
    return nameOf(layout.kind) + "_" + nameOf(layout.layout) +
           (layout.isMultiGrid ? "_MultiGrid" : "") + (layout.hasIBlank ? "_IBlank" : "");
}

std::string nameOf(const FileForm_s& form) {
    const std::string width = isDouble(form) ? "64" : "32";
    const std::string order = form.byteOrder == ByteOrder_e::Big ? "Big" : "Little";
    if (form.encoding == Encoding_e::Text)
        return "Text" + width;
    if (form.encoding == Encoding_e::Binary)
        return "Binary" + order + width;
    return "Fortran" + std::to_string(form.markerBytes) + order + width;
}

std::string nameOf(const MatrixCase_s& matrixCase) {
    return nameOf(matrixCase.layout) + "_" + nameOf(matrixCase.form);
}

void PrintTo(const MatrixCase_s& matrixCase, std::ostream* out) {
    *out << nameOf(matrixCase);
}

bool isSolution(FileKind_e kind) {
    return kind != FileKind_e::Grid && kind != FileKind_e::Function;
}

bool isDouble(const FileForm_s& form) {
    return form.precision == Precision_e::Double;
}

LayoutCase_s companionGrid(const LayoutCase_s& layout) {
    const bool wantsIBlank =
        layout.kind == FileKind_e::SwiftSolution || layout.kind == FileKind_e::Function;
    const bool mayHaveIBlank =
        layout.layout == Layout_e::TwoD || layout.layout == Layout_e::ThreeDWhole;
    return {FileKind_e::Grid, layout.layout, layout.isMultiGrid, wantsIBlank && mayHaveIBlank};
}

FileDescription_s contentsOf(const LayoutCase_s& layout) {
    FileDescription_s contents =
        describe(layout.kind, gridsOf(layout), layout.layout,
                 [kind = layout.kind](std::int32_t grid, std::int32_t variable, std::int32_t i,
                                      std::int32_t j, std::int32_t k) {
                     return valueAt(kind, grid, variable, i, j, k);
                 });
    contents.isMultiGrid = layout.isMultiGrid;
    contents.hasIBlank = layout.hasIBlank;
    if (layout.kind == FileKind_e::OverflowSolution) {
        contents.numVars = 10;
        contents.numSpecies = 2;
    } else if (layout.kind == FileKind_e::Function) {
        contents.numVars = 2;
    }
    if (isSolution(layout.kind))
        for (std::int32_t grid = 0; grid < static_cast<std::int32_t>(contents.grids.size()); ++grid)
            contents.scalars.push_back(scalarsOf(grid, scalarCount(contents)));
    contents.iblank = iblankAt;
    contents.corner = cornerAt;
    // Integers that no reader may test or keep.
    contents.triangleTag = [](std::int32_t, std::int64_t triangle) {
        return static_cast<std::int32_t>(-1000 - triangle);
    };
    return contents;
}

FileDescription_s contentsOfStep(FileKind_e kind, int step) {
    FileDescription_s contents =
        contentsOf({kind, Layout_e::ThreeDWhole, true, kind == FileKind_e::Grid});
    contents.grids.resize(2);
    setScalars(contents, {0.5, 2.25, 1500000.0, 0.25 * step});
    contents.value = [kind, step](std::int32_t grid, std::int32_t variable, std::int32_t i,
                                  std::int32_t j, std::int32_t k) {
        return valueAt(kind, grid, variable, i, j, k) + 7.0 * step;
    };
    return contents;
}

double valueAt(FileKind_e kind, std::int32_t grid, std::int32_t variable, std::int64_t i,
               std::int64_t j, std::int64_t k) {
    const double ofFile = kind == FileKind_e::Grid ? 0.1 : 50.1;
    const double place = ofFile + static_cast<double>(i + 100 * j + 10000 * k) +
                         100000.0 * variable + 2000000.0 * grid;
    return variable % 2 == 0 ? place : -place;
}

std::int32_t iblankAt(std::int32_t grid, std::int64_t i, std::int64_t j, std::int64_t k) {
    return static_cast<std::int32_t>((i + 2 * j + 3 * k) % 5) - 2 - grid;
}

std::int32_t cornerAt(std::int32_t grid, std::int64_t element, std::int32_t corner) {
    return static_cast<std::int32_t>((element + 2 * corner + grid) % 5) + 1;
}

} // namespace quorvia::testsupport
