// Sod's shock tube: gas at rest, eight times as dense and ten times the pressure on the left.
#include <cmath>
#include <limits>

#include "plot3dsample/FlowFiles.h"
#include "plot3dsample/ShockTubeFlow.h"

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::GridDims_s;

constexpr TubeState_s driver = {1, 0, 1};
constexpr TubeState_s driven = {0.125, 0, 0.1};
constexpr double diaphragm = 0.5; ///< the tube is 1 long
constexpr double width = 0.1;
constexpr double shockTimeStep = 0.05;
constexpr std::int32_t usualShockSteps = 5;

Mesh_s tubeMesh(const GridDims_s& size) {
    Mesh_s mesh;
    mesh.grids = {size};
    mesh.point = [size](const PointIndex_s& index) {
        return Point_t{along(0, 1, index.i, size.i), along(0, width, index.j, size.j),
                       along(0, width, index.k, size.k)};
    };
    return mesh;
}

double speedAt(double x, double time) {
    const double distance = x - diaphragm;
    if (time > 0)
        return distance / time;
    return std::copysign(std::numeric_limits<double>::infinity(), distance);
}

FlowField tubeAt(const Mesh_s& mesh, double time) {
    const StarState_s star = solveStarState(driver, driven);
    return [point = mesh.point, star, time](const PointIndex_s& index) {
        const double speed = speedAt(point(index)[0], time);
        const TubeState_s tube = sampleTube(driver, driven, star, speed);
        FlowState_s state;
        state.density = tube.density;
        state.velocity = {tube.velocity, 0, 0};
        state.pressure = tube.pressure;
        return state;
    };
}

} // namespace

std::vector<SampleFile_s> shockTubeFiles(const SampleOptions_s& options) {
    refuseBoundaries(options);
    refuseSurface(options);
    const Layout_e layout = chooseLayout(
        options, {Layout_e::OneD, Layout_e::TwoD, Layout_e::ThreeDWhole, Layout_e::ThreeDPlanes});
    if (layout == Layout_e::OneD)
        refuseIBlank(options);
    const FileKind_e style = chooseStyle(options, stylesOf(layout));
    const Mesh_s mesh = tubeMesh(chooseSize(options, layout, {101, 5, 3}));
    const std::int32_t steps = options.steps.value_or(usualShockSteps);
    std::vector<SampleFile_s> files = {gridFile(options, "shocktube", layout, mesh)};
    for (std::int32_t step = 0; step < steps; ++step) {
        const double time = shockTimeStep * step;
        const std::string stem = stemAtTime("shocktube", time, shockTimeStep * (steps - 1));
        files.push_back(
            flowFile(options, stem, style, layout, mesh, tubeAt(mesh, time), {0, 0, 0, time}));
    }
    if (style == FileKind_e::Function)
        files.push_back(flowNameFile("shocktube", layout));
    return files;
}

} // namespace quorvia::plot3dsample
