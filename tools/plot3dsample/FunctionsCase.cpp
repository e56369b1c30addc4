// A steady periodic flow of an incompressible fluid whose vorticity is everywhere equal to its
// velocity. Its quantities stand in two function files, named by a name file.
#include <cmath>
#include <numbers>

#include "plot3dsample/FlowFiles.h"

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::GridDims_s;

constexpr std::int32_t variableCount = 4; // alike in all function files of a load

// A loader takes the lines for the variables of the first function file only.
constexpr std::string_view names = "U; velocity along X\n"
                                   "V; velocity along Y\n"
                                   "W; velocity along Z\n"
                                   "Pressure; over density, zero where the fluid rests\n";

Mesh_s periodicMesh(const GridDims_s& size) {
    Mesh_s mesh;
    mesh.grids = {size};
    mesh.point = [size](const PointIndex_s& index) {
        constexpr double period = 2 * std::numbers::pi;
        return Point_t{period * index.i / (size.i - 1), period * index.j / (size.j - 1),
                       period * index.k / (size.k - 1)};
    };
    return mesh;
}

Point_t velocityAt(const Point_t& place) {
    const auto [x, y, z] = place;
    const double a = 1;
    const double b = std::sqrt(2.0 / 3);
    const double c = std::sqrt(1.0 / 3);
    return {a * std::sin(z) + c * std::cos(y), b * std::sin(x) + a * std::cos(z),
            c * std::sin(y) + b * std::cos(x)};
}

double kineticEnergy(const Point_t& velocity) {
    const auto [u, v, w] = velocity;
    return 0.5 * (u * u + v * v + w * w);
}

double velocityVariable(const Point_t& velocity, std::int32_t variable) {
    return variable < 3 ? velocity[static_cast<std::size_t>(variable)] : -kineticEnergy(velocity);
}

/// The vorticity, which is the velocity here, and the helicity, their product.
double vorticityVariable(const Point_t& velocity, std::int32_t variable) {
    return variable < 3 ? velocity[static_cast<std::size_t>(variable)]
                        : 2 * kineticEnergy(velocity);
}

SampleFile_s functionFile(const SampleOptions_s& options, std::string_view stem, Layout_e layout,
                          const Mesh_s& mesh, double (*variableOf)(const Point_t&, std::int32_t)) {
    SampleFile_s file =
        flowFile(options, stem, FileKind_e::Function, layout, mesh, FlowField(), {});
    file.description.numVars = variableCount;
    file.description.value = [point = mesh.point, variableOf](std::int32_t grid,
                                                              std::int32_t variable, std::int32_t i,
                                                              std::int32_t j, std::int32_t k) {
        return variableOf(velocityAt(point({grid, i, j, k})), variable);
    };
    return file;
}

} // namespace

std::vector<SampleFile_s> functionFiles(const SampleOptions_s& options) {
    refuseBoundaries(options);
    refuseSteps(options);
    refuseSurface(options);
    const Layout_e layout = chooseLayout(options, {Layout_e::ThreeDWhole, Layout_e::ThreeDPlanes});
    chooseStyle(options, {FileKind_e::Function});
    const Mesh_s mesh = periodicMesh(chooseSize(options, layout, {23, 19, 17}));
    return {gridFile(options, "functions", layout, mesh),
            functionFile(options, "functions_velocity", layout, mesh, velocityVariable),
            functionFile(options, "functions_vorticity", layout, mesh, vorticityVariable),
            {"functions.nam", {}, std::string(names)}};
}

} // namespace quorvia::plot3dsample
