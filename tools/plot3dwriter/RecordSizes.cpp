#include "plot3dwriter/RecordSizes.h"

#include <limits>

namespace quorvia::plot3dwriter {

namespace {
constexpr std::int64_t integerWidth = 4;
constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
} // namespace

std::optional<std::int64_t> checkedProduct(std::optional<std::int64_t> a,
                                           std::optional<std::int64_t> b) {
    if (!a || !b || *a < 0 || *b < 0)
        return std::nullopt;
    if (*b != 0 && *a > largest / *b)
        return std::nullopt;
    return *a * *b;
}

std::optional<std::int64_t> checkedSum(std::optional<std::int64_t> a,
                                       std::optional<std::int64_t> b) {
    if (!a || !b || *a < 0 || *b < 0 || *a > largest - *b)
        return std::nullopt;
    return *a + *b;
}

std::int64_t realWidth(const FileForm_s& form) {
    return form.precision == Precision_e::Double ? 8 : 4;
}

std::int64_t headerBytes(const FileDescription_s& description) {
    std::int64_t integersPerGrid = 3;
    if (description.layout == Layout_e::OneD)
        integersPerGrid = 1;
    else if (description.layout == Layout_e::TwoD)
        integersPerGrid = 2;
    if (isCountOfEachGrid(description.kind))
        ++integersPerGrid;
    const std::int64_t overflowCounts = description.kind == FileKind_e::OverflowSolution ? 2 : 0;
    const auto gridCount = static_cast<std::int64_t>(description.grids.size());
    return integerWidth * (gridCount * integersPerGrid + overflowCounts);
}

std::int64_t scalarsBytes(const FileDescription_s& description, const FileForm_s& form,
                          std::size_t grid) {
    if (scalarCount(description) == 0)
        return 0;
    const auto count = static_cast<std::int64_t>(description.scalars[grid].size());
    const std::int64_t narrowerBy =
        description.kind == FileKind_e::OverflowSolution ? realWidth(form) - integerWidth : 0;
    return count * realWidth(form) - narrowerBy;
}

std::optional<std::int64_t> dataBytes(const FileDescription_s& description, const FileForm_s& form,
                                      const GridDims_s& grid) {
    std::optional<std::int64_t> points = grid.i;
    if (description.layout != Layout_e::Unstructured)
        points = checkedProduct(points, grid.j);
    if (description.layout == Layout_e::ThreeDWhole)
        points = checkedProduct(points, grid.k);
    const std::int64_t iblankWidth = description.hasIBlank ? integerWidth : 0;
    const std::int64_t bytesPerPoint = variableCount(description) * realWidth(form) + iblankWidth;
    const auto fields = checkedProduct(points, bytesPerPoint);
    if (description.layout != Layout_e::Unstructured || description.kind != FileKind_e::Grid)
        return fields;
    // A triangle has three corners and a tag, a tetrahedron four corners: four integers either way.
    const std::int64_t elements = std::int64_t{grid.j} + grid.k;
    return checkedSum(fields, 4 * integerWidth * elements);
}

} // namespace quorvia::plot3dwriter
