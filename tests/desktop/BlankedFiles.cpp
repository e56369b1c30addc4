#include "desktop/BlankedFiles.h"

#include <limits>

#include "support/SmallFiles.h"

namespace quorvia::host {
namespace {

double valueAt(std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
    const bool isSpecial = grid == 0 && j == 0 && k == 0;
    if (isSpecial && i == 0)
        return std::numeric_limits<float>::max();
    if (isSpecial && i == 1)
        return std::numeric_limits<double>::quiet_NaN();
    if (isSpecial && i == 2)
        return std::numeric_limits<double>::infinity();
    return 1000.0 * grid + i + 10.0 * j + 100.0 * k;
}

} // namespace

std::vector<std::string> writeBlankedFiles(const testsupport::TemporaryDirectory& directory) {
    plot3dwriter::FileDescription_s grid;
    grid.grids = {{5, 3, 2}, {2, 2, 1}};
    grid.isMultiGrid = true;
    grid.hasIBlank = true;
    grid.value = [](std::int32_t number, std::int32_t axis, std::int32_t i, std::int32_t j,
                    std::int32_t k) {
        return axis == 0 ? i + 10.0 * number : axis == 1 ? j : k;
    };
    grid.iblank = [](std::int32_t number, std::int32_t i, std::int32_t j, std::int32_t k) {
        if (number == 0 && i == 0)
            return 0;
        return number == 0 && i == 1 && j == 0 && k == 0 ? -2 : 1;
    };
    plot3dwriter::FileDescription_s function = grid;
    function.kind = plot3dwriter::FileKind_e::Function;
    function.hasIBlank = false;
    function.numVars = 1;
    function.value = [](std::int32_t number, std::int32_t, std::int32_t i, std::int32_t j,
                        std::int32_t k) { return valueAt(number, i, j, k); };
    testsupport::writeFile(directory.file("blanked.x"), grid);
    testsupport::writeFile(directory.file("blanked.f"), function);
    return {"blanked.x", "blanked.f"};
}

} // namespace quorvia::host
