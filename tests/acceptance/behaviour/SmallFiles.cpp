#include "acceptance/behaviour/SmallFiles.h"

#include <stdexcept>

namespace quorvia::testsupport {

using namespace plot3dwriter;

namespace {

constexpr GridDims_s surfaceDims = {7, 5, 0};

FileDescription_s describe(FileKind_e kind, Layout_e layout, const std::vector<GridDims_s>& grids) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = true;
    description.grids = grids;
    description.value = placeValue;
    description.iblank = [](std::int32_t, std::int32_t i, std::int32_t, std::int32_t) {
        return i % 2;
    };
    description.corner = [](std::int32_t, std::int64_t element, std::int32_t corner) {
        return static_cast<std::int32_t>(element) + corner % 3 + 1;
    };
    return description;
}

void setScalars(FileDescription_s& description, double time) {
    description.scalars.assign(description.grids.size(), {0.5, 2.0, 1000.0, time});
}

} // namespace

double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                  std::int32_t k) {
    return i + 10 * j + 100 * k + 1000 * variable + 10000 * grid;
}

SmallFiles::SmallFiles(const std::string& folder) : folder_(folder) {
    if (!folder_.empty())
        folder_ += '/';
}

std::string SmallFiles::grid(const std::string& name, bool hasIBlank) const {
    FileDescription_s description = describe(FileKind_e::Grid, Layout_e::ThreeDWhole, grids);
    description.hasIBlank = hasIBlank;
    return write(name, description);
}

std::string SmallFiles::solution(const std::string& name, double time) const {
    FileDescription_s description =
        describe(FileKind_e::ClassicSolution, Layout_e::ThreeDWhole, grids);
    setScalars(description, time);
    return write(name, description);
}

std::string SmallFiles::function(const std::string& name, std::int32_t variableCount) const {
    FileDescription_s description = describe(FileKind_e::Function, Layout_e::ThreeDWhole, grids);
    description.numVars = variableCount;
    return write(name, description);
}

std::string SmallFiles::surface(const std::string& name) const {
    return write(name, describe(FileKind_e::Grid, Layout_e::Unstructured, {surfaceDims}));
}

std::string SmallFiles::surfaceSolution(const std::string& name, double time) const {
    FileDescription_s description =
        describe(FileKind_e::ClassicSolution, Layout_e::Unstructured, {surfaceDims});
    setScalars(description, time);
    return write(name, description);
}

std::string SmallFiles::write(const std::string& name, const FileDescription_s& description) const {
    const std::string path = folder_ + name;
    const WriteOutcome_s outcome = writePlot3DFile(path, description, form);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
    return path;
}

} // namespace quorvia::testsupport
