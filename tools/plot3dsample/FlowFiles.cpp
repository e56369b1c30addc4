#include "plot3dsample/FlowFiles.h"

#include <algorithm>

#include <fmt/format.h>

namespace quorvia::plot3dsample {

using plot3dwriter::FileDescription_s;
using plot3dwriter::GridDims_s;

namespace {

template <class Choice>
Choice choose(const SampleOptions_s& options, std::string_view what,
              const std::optional<Choice>& wanted, const std::vector<Choice>& accepted) {
    if (!wanted)
        return accepted.front();
    if (std::find(accepted.begin(), accepted.end(), *wanted) != accepted.end())
        return *wanted;
    std::string expected;
    for (const Choice choice : accepted)
        expected += (expected.empty() ? "" : " or ") + nameOf(choice);
    throw UsageError(fmt::format("the case {} has no {} {} here, expected {}", options.caseName,
                                 what, nameOf(*wanted), expected));
}

void refuse(const SampleOptions_s& options, std::string_view option, bool isAsked) {
    if (isAsked)
        throw UsageError(fmt::format("the case {} takes no {} here", options.caseName, option));
}

FileDescription_s describe(const SampleOptions_s& options, FileKind_e kind, Layout_e layout,
                           const Mesh_s& mesh) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = layout != Layout_e::OneD && !options.isSingleGrid;
    description.grids = mesh.grids;
    return description;
}

} // namespace

double along(double first, double last, std::int32_t index, std::int32_t count) {
    return count < 2 ? first : first + (last - first) * index / (count - 1);
}

Layout_e chooseLayout(const SampleOptions_s& options, const std::vector<Layout_e>& accepted) {
    return choose(options, "layout", options.layout, accepted);
}

FileKind_e chooseStyle(const SampleOptions_s& options, const std::vector<FileKind_e>& accepted) {
    return choose(options, "style", options.style, accepted);
}

std::vector<FileKind_e> stylesOf(Layout_e layout) {
    std::vector<FileKind_e> styles = {FileKind_e::ClassicSolution, FileKind_e::Function};
    if (layout != Layout_e::Unstructured)
        styles.push_back(FileKind_e::SwiftSolution);
    if (layout == Layout_e::ThreeDWhole || layout == Layout_e::ThreeDPlanes)
        styles.push_back(FileKind_e::OverflowSolution);
    return styles;
}

GridDims_s chooseSize(const SampleOptions_s& options, Layout_e layout, const GridDims_s& usual) {
    const std::array<std::int32_t, 3> ownSize = {usual.i, usual.j, usual.k};
    std::array<std::int32_t, 3> size = {1, 1, 1};
    for (std::size_t axis = 0; axis < size.size(); ++axis) {
        if (static_cast<std::int32_t>(axis) >= directionCount(layout)) {
            if (options.size[axis] != 0)
                throw UsageError(fmt::format("--size: layout {} takes {} of these", nameOf(layout),
                                             directionCount(layout)));
            continue;
        }
        size[axis] = options.size[axis] == 0 ? ownSize[axis] : options.size[axis];
        if (size[axis] < 2)
            throw UsageError("--size: each direction needs at least 2 points");
    }
    return {size[0], size[1], size[2]};
}

void refuseSteps(const SampleOptions_s& options) {
    refuse(options, "--steps", options.steps.has_value());
}

void refuseIBlank(const SampleOptions_s& options) {
    refuse(options, "--iblank", options.hasIBlank);
}

void refuseSurface(const SampleOptions_s& options) {
    refuse(options, "--surface", options.isSurface);
}

void refuseBoundaries(const SampleOptions_s& options) {
    refuse(options, "--boundaries", options.hasBoundaries);
}

SampleFile_s gridFile(const SampleOptions_s& options, std::string_view stem, Layout_e layout,
                      const Mesh_s& mesh) {
    FileDescription_s grid = describe(options, FileKind_e::Grid, layout, mesh);
    grid.hasIBlank = options.hasIBlank;
    grid.corner = mesh.corner;
    grid.value = [point = mesh.point](std::int32_t gridIndex, std::int32_t axis, std::int32_t i,
                                      std::int32_t j, std::int32_t k) {
        return point({gridIndex, i, j, k})[static_cast<std::size_t>(axis)];
    };
    grid.iblank = [iblank = mesh.iblank](std::int32_t gridIndex, std::int32_t i, std::int32_t j,
                                         std::int32_t k) {
        return iblank ? iblank({gridIndex, i, j, k}) : 1;
    };
    return {fmt::format("{}.x", stem), grid, ""};
}

SampleFile_s flowFile(const SampleOptions_s& options, std::string_view stem, FileKind_e style,
                      Layout_e layout, const Mesh_s& mesh, const FlowField& flow,
                      const Reference_s& reference) {
    FileDescription_s file = describe(options, style, layout, mesh);
    const std::int32_t directions = directionCount(layout);
    const bool isOverflow = style == FileKind_e::OverflowSolution;
    file.numVars = directions + 2 + (isOverflow ? 1 : 0);
    file.scalars.assign(mesh.grids.size(), referenceScalars(style, layout, reference));
    file.value = [flow, directions](std::int32_t gridIndex, std::int32_t variable, std::int32_t i,
                                    std::int32_t j, std::int32_t k) {
        return solutionVariable(flow({gridIndex, i, j, k}), directions, variable);
    };
    return {fmt::format("{}.{}", stem, style == FileKind_e::Function ? "fun" : "q"), file, ""};
}

SampleFile_s flowNameFile(std::string_view stem, Layout_e layout) {
    std::string text = "RHO; density\nRHO-U; momentum along X\n";
    if (directionCount(layout) > 1)
        text += "RHO-V; momentum along Y\n";
    if (directionCount(layout) > 2)
        text += "RHO-W; momentum along Z\n";
    text += "E; total energy per volume\n";
    return {fmt::format("{}.nam", stem), {}, text};
}

std::string stemAtTime(std::string_view stem, double time, double lastTime) {
    const std::size_t width = fmt::format("{:.2f}", lastTime).size();
    return fmt::format("{}_t{:0{}.2f}", stem, time, width);
}

} // namespace quorvia::plot3dsample
