#include "SceneFixture.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include <plot3d/FileNames.h>

#include "plot3dsample/Run.h"
#include "support/SmallFiles.h"
#include "view/ViewWords.h"

namespace plot3dtest {

std::vector<std::string> SceneTest::sample(std::vector<std::string> words) const {
    const std::filesystem::path target = folder_.file(words.front() + std::to_string(words.size()));
    words.insert(words.begin() + 1, target.string());
    std::ostringstream out;
    std::ostringstream err;
    if (quorvia::plot3dsample::run(words, out, err) != 0)
        throw std::runtime_error(err.str());
    std::vector<std::string> files;
    for (const auto& entry : std::filesystem::directory_iterator(target))
        files.push_back(entry.path().string());
    std::sort(files.begin(), files.end(), plot3d::naturalLess);
    return files;
}

DataSet SceneTest::numbered(const plot3d::Extent& size,
                            const std::vector<plot3d::Extent>& blanked) const {
    const quorvia::testsupport::GridList grids = {{static_cast<std::int32_t>(size.i),
                                                   static_cast<std::int32_t>(size.j),
                                                   static_cast<std::int32_t>(size.k)}};
    auto grid = quorvia::testsupport::describeGrid(grids);
    grid.hasIBlank = !blanked.empty();
    grid.value = [](std::int32_t, std::int32_t axis, std::int32_t i, std::int32_t j,
                    std::int32_t k) {
        return axis == 0 ? i + j / 4.0 + k / 8.0 : axis == 1 ? j : k;
    };
    grid.iblank = [blanked](std::int32_t, std::int32_t i, std::int32_t j, std::int32_t k) {
        return std::count(blanked.begin(), blanked.end(), plot3d::Extent{i, j, k}) > 0 ? 0 : 1;
    };
    auto function = quorvia::testsupport::describeFunction(grids, 1);
    function.value = [](std::int32_t, std::int32_t, std::int32_t i, std::int32_t j,
                        std::int32_t k) { return i + 100.0 * j + 10000.0 * k; };
    quorvia::testsupport::writeFile(folder_.file("numbered.x"), grid);
    quorvia::testsupport::writeFile(folder_.file("numbered.f"), function);
    return DataSet::open({folder_.file("numbered.x"), folder_.file("numbered.f")});
}

View_s viewOf(const std::string& surfaces) {
    View_s view;
    view.surfaces = plot3d::scene::surfacesFromText(surfaces);
    return view;
}

} // namespace plot3dtest
