#include "surfaces/PatchCells.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "view/Vector3.h"

namespace plot3d::scene {

namespace {

/// The two directions of a patch, as it lies in its mesh.
struct Grid_s {
    std::int64_t first = 0;
    std::int64_t columns = 1;
    std::int64_t rows = 1;

    std::int64_t at(std::int64_t column, std::int64_t row) const {
        return first + row * columns + column;
    }
};

/// A direction of one index is skipped, so that the others follow one another. A patch without one
/// is no plane; its cells would be solid, and it is not made.
Grid_s gridOf(const Patch_s& patch) {
    const Extent size = patch.box.extent();
    std::array<std::int64_t, 2> counts = {1, 1};
    std::size_t next = 0;
    for (const std::int64_t count : {size.i, size.j, size.k})
        if (count > 1 && next < counts.size())
            counts[next++] = count;
    return {patch.firstPoint, counts[0], counts[1]};
}

class Visibility {
public:
    Visibility(const std::vector<double>& points, const std::vector<double>& blank)
        : points_(points), blank_(blank) {}

    bool isHidden(std::int64_t point) const {
        const auto place = static_cast<std::size_t>(point);
        const double* at = &points_[3 * place];
        return (!blank_.empty() && blank_[place] == 0) || !std::isfinite(at[0] + at[1] + at[2]);
    }

private:
    const std::vector<double>& points_;
    const std::vector<double>& blank_;
};

/// 0, step, ..., and the last one.
std::vector<std::int64_t> stepsOf(std::int64_t count, std::int64_t step) {
    std::vector<std::int64_t> steps;
    for (std::int64_t index = 0; index < count - 1; index += step)
        steps.push_back(index);
    steps.push_back(count - 1);
    return steps;
}

void addQuads(const Grid_s& grid, const Visibility& visibility, std::int64_t step,
              PatchCells_s& cells) {
    const std::vector<std::int64_t> columns = stepsOf(grid.columns, step);
    const std::vector<std::int64_t> rows = stepsOf(grid.rows, step);
    cells.quads.reserve(4 * (columns.size() - 1) * (rows.size() - 1));
    for (std::size_t row = 0; row + 1 < rows.size(); ++row)
        for (std::size_t column = 0; column + 1 < columns.size(); ++column) {
            const std::array<std::int64_t, 4> corners = {
                grid.at(columns[column], rows[row]), grid.at(columns[column + 1], rows[row]),
                grid.at(columns[column + 1], rows[row + 1]),
                grid.at(columns[column], rows[row + 1])};
            bool hides = false;
            for (const std::int64_t corner : corners)
                hides = hides || visibility.isHidden(corner);
            if (hides) {
                ++cells.hidden;
                continue;
            }
            for (const std::int64_t corner : corners)
                cells.quads.push_back(static_cast<std::int32_t>(corner));
        }
}

void addLines(const Grid_s& grid, const Visibility& visibility, PatchCells_s& cells) {
    for (std::int64_t column = 0; column + 1 < grid.columns; ++column) {
        const std::int64_t one = grid.at(column, 0);
        if (visibility.isHidden(one) || visibility.isHidden(one + 1)) {
            ++cells.hidden;
            continue;
        }
        cells.lines.push_back(static_cast<std::int32_t>(one));
        cells.lines.push_back(static_cast<std::int32_t>(one + 1));
    }
}

Vector3 difference(const std::vector<double>& points, std::int64_t one, std::int64_t other) {
    const double* a = &points[3 * static_cast<std::size_t>(one)];
    const double* b = &points[3 * static_cast<std::size_t>(other)];
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

} // namespace

PatchCells_s cellsOf(const Patch_s& patch, const std::vector<double>& points,
                     const std::vector<double>& blank, std::int64_t step) {
    const Grid_s grid = gridOf(patch);
    const Visibility visibility(points, blank);
    PatchCells_s cells;
    if (grid.rows > 1)
        addQuads(grid, visibility, step, cells);
    else
        addLines(grid, visibility, cells);
    return cells;
}

void fillNormals(const Patch_s& patch, const std::vector<double>& points,
                 std::vector<float>& normals) {
    const Grid_s grid = gridOf(patch);
    std::vector<Vector3> sums(static_cast<std::size_t>(grid.columns * grid.rows));
    for (std::int64_t row = 0; row + 1 < grid.rows; ++row)
        for (std::int64_t column = 0; column + 1 < grid.columns; ++column) {
            const std::array<std::int64_t, 4> corners = {
                grid.at(column, row), grid.at(column + 1, row), grid.at(column + 1, row + 1),
                grid.at(column, row + 1)};
            const Vector3 normal = cross(difference(points, corners[2], corners[0]),
                                         difference(points, corners[3], corners[1]));
            if (!std::isfinite(normal[0] + normal[1] + normal[2]))
                continue;
            for (const std::int64_t corner : corners)
                for (std::size_t axis = 0; axis < 3; ++axis)
                    sums[static_cast<std::size_t>(corner - grid.first)][axis] += normal[axis];
        }
    float* target = &normals[3 * static_cast<std::size_t>(grid.first)];
    for (const Vector3& sum : sums) {
        const double length = std::hypot(sum[0], sum[1], sum[2]);
        const bool isFlat = !(length > 0) || !std::isfinite(length);
        for (std::size_t axis = 0; axis < 3; ++axis)
            *target++ = static_cast<float>(isFlat ? (axis == 2 ? 1.0 : 0.0) : sum[axis] / length);
    }
}

} // namespace plot3d::scene
