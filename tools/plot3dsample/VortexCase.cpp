// A time series on one grid. The domain is periodic along X: what leaves comes back.
#include <cmath>

#include "plot3dsample/BoundaryText.h"
#include "plot3dsample/FlowFiles.h"
#include "plot3dsample/VortexFlow.h"

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::GridDims_s;

constexpr double vortexMachNumber = 0.5;
constexpr double strength = 0.4;
constexpr double halfLength = 5;
constexpr double startX = -2.5;
constexpr double timeStep = 0.25;
constexpr std::int32_t usualSteps = 5;

Mesh_s vortexMesh(const GridDims_s& size) {
    Mesh_s mesh;
    mesh.grids = {size};
    mesh.point = [size](const PointIndex_s& index) {
        return Point_t{along(-halfLength, halfLength, index.i, size.i),
                       along(-halfLength, halfLength, index.j, size.j),
                       along(0, 1, index.k, size.k)};
    };
    return mesh;
}

/// The distance to the nearest of the vortex and its periodic images.
double fromCentre(double x, double centre) {
    return std::remainder(x - centre, 2 * halfLength);
}

FlowField vortexAt(const Mesh_s& mesh, double time) {
    const double centre = startX + vortexMachNumber * time;
    return [point = mesh.point, centre](const PointIndex_s& index) {
        const Point_t place = point(index);
        return vortexFlow(fromCentre(place[0], centre), place[1], vortexMachNumber, strength);
    };
}

} // namespace

std::vector<SampleFile_s> vortexFiles(const SampleOptions_s& options) {
    refuseSurface(options);
    const Layout_e layout =
        chooseLayout(options, {Layout_e::TwoD, Layout_e::ThreeDWhole, Layout_e::ThreeDPlanes});
    const FileKind_e style = chooseStyle(options, stylesOf(layout));
    const Mesh_s mesh = vortexMesh(chooseSize(options, layout, {41, 37, 3}));
    const std::int32_t steps = options.steps.value_or(usualSteps);
    std::vector<SampleFile_s> files = {gridFile(options, "vortex", layout, mesh)};
    for (std::int32_t step = 0; step < steps; ++step) {
        const double time = timeStep * step;
        const std::string stem = stemAtTime("vortex", time, timeStep * (steps - 1));
        files.push_back(flowFile(options, stem, style, layout, mesh, vortexAt(mesh, time),
                                 {vortexMachNumber, 0, 1e6, time}));
    }
    if (style == FileKind_e::Function)
        files.push_back(flowNameFile("vortex", layout));
    if (options.hasBoundaries)
        files.push_back(boundaryFile("vortex", {{"inflow", 1, "1 1 1 $ 1 $"},
                                                {"outflow", 1, "$ $ 1 $ 1 $"},
                                                {"symmetry", 1, "1 $ 1 1 1 $"},
                                                {"symmetry", 1, "1 $ $ $ 1 $"}}));
    return files;
}

} // namespace quorvia::plot3dsample
