// A ball of gas at one temperature, in rigid rotation about Z: what spins faster is pressed
// outwards.
#include <cmath>
#include <limits>

#include "plot3dsample/BallMesh.h"
#include "plot3dsample/FlowFiles.h"

namespace quorvia::plot3dsample {

namespace {

constexpr double rotation = 0.5; ///< speed at the equator, a Mach number
constexpr std::int32_t usualCells = 7;

std::int32_t cellsPerEdge(const SampleOptions_s& options) {
    if (options.size[1] != 0)
        throw UsageError("--size: the case ball takes one count, of cells along its edge");
    return options.size[0] == 0 ? usualCells : options.size[0];
}

std::int32_t fileCount(std::int64_t count) {
    if (count > std::numeric_limits<std::int32_t>::max())
        throw UsageError("--size: a file can't count so many elements, expected fewer cells");
    return static_cast<std::int32_t>(count);
}

template <class Ball>
Mesh_s meshOf(const Ball& ball, std::int32_t cells, bool isSurface) {
    Mesh_s mesh;
    const std::int32_t elements = fileCount(ball.elementCount());
    const std::int32_t nodes = fileCount(ball.nodeCount());
    mesh.grids = {{nodes, isSurface ? elements : 0, isSurface ? 0 : elements}};
    mesh.point = [ball, cells](const PointIndex_s& index) {
        return ballPoint(ball.lattice(index.i), cells);
    };
    mesh.corner = [ball](std::int32_t, std::int64_t element, std::int32_t corner) {
        return ball.corner(element, corner);
    };
    return mesh;
}

Mesh_s ballMesh(const SampleOptions_s& options) {
    const std::int32_t cells = cellsPerEdge(options);
    constexpr std::int32_t mostCells = 20000; // beyond, the counts themselves leave 64 bits
    fileCount(cells > mostCells ? std::numeric_limits<std::int64_t>::max() : 0);
    return options.isSurface ? meshOf(BallSurface(cells), cells, true)
                             : meshOf(BallVolume(cells), cells, false);
}

FlowField ballFlow(const Mesh_s& mesh) {
    return [point = mesh.point](const PointIndex_s& index) {
        const auto [x, y, z] = point(index);
        FlowState_s state;
        state.velocity = {-rotation * y, rotation * x, 0};
        state.density = std::exp(0.5 * airGamma * rotation * rotation * (x * x + y * y));
        state.pressure = state.density / airGamma;
        return state;
    };
}

} // namespace

std::vector<SampleFile_s> ballFiles(const SampleOptions_s& options) {
    refuseBoundaries(options);
    refuseSteps(options);
    refuseIBlank(options);
    const Layout_e layout = chooseLayout(options, {Layout_e::Unstructured});
    const FileKind_e style = chooseStyle(options, stylesOf(layout));
    const Mesh_s mesh = ballMesh(options);
    std::vector<SampleFile_s> files = {
        gridFile(options, "ball", layout, mesh),
        flowFile(options, "ball", style, layout, mesh, ballFlow(mesh), {rotation, 0, 0, 0})};
    if (style == FileKind_e::Function)
        files.push_back(flowNameFile("ball", layout));
    return files;
}

} // namespace quorvia::plot3dsample
