// Two gases at one pressure and temperature flow past each other and mix in a layer that grows
// along X. The variables are all that an Overflow solution knows: density, momentum, energy,
// gamma, the densities of the two species, and kinetic energy and dissipation of the turbulence.
#include <cmath>

#include "plot3dsample/FlowFiles.h"

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::GridDims_s;

constexpr double upperSpeed = 0.6; ///< Mach numbers
constexpr double lowerSpeed = 0.2;
constexpr std::array<double, 2> speciesGamma = {1.3, 1.4};       ///< upper gas, lower gas
constexpr std::array<double, 2> speciesGasConstant = {1.5, 1.0}; ///< in units of the lower gas's
constexpr std::int32_t speciesCount = 2;
constexpr std::int32_t firstSpeciesVariable = 6;
constexpr std::int32_t turbulenceVariable = firstSpeciesVariable + speciesCount;
constexpr double length = 4;

struct Mixture_s {
    FlowState_s state;
    double upperFraction = 0; ///< by mass
    double turbulence = 0;    ///< kinetic energy per mass
    double dissipation = 0;
};

double layerThickness(double x) {
    return 0.1 + 0.05 * x;
}

Mixture_s mixtureAt(double x, double y) {
    const double thickness = layerThickness(x);
    const double profile = std::tanh(y / thickness);
    Mixture_s mixture;
    mixture.upperFraction = 0.5 * (1 + profile);
    const double upper = mixture.upperFraction;
    const double lower = 1 - upper;
    const double gasConstant = upper * speciesGasConstant[0] + lower * speciesGasConstant[1];
    mixture.state.density = 1 / gasConstant;
    mixture.state.velocity = {lowerSpeed + (upperSpeed - lowerSpeed) * upper, 0, 0};
    mixture.state.gamma = upper * speciesGamma[0] + lower * speciesGamma[1];

    const double speedDifference = upperSpeed - lowerSpeed;
    mixture.turbulence = 0.03 * speedDifference * speedDifference * (1 - profile * profile);
    mixture.dissipation = 0.16 * std::pow(mixture.turbulence, 1.5) / thickness;
    return mixture;
}

double mixtureVariable(const Mixture_s& mixture, std::int32_t variable) {
    const double upper = mixture.upperFraction;
    if (variable < firstSpeciesVariable)
        return solutionVariable(mixture.state, 3, variable);
    if (variable < turbulenceVariable)
        return mixture.state.density * (variable == firstSpeciesVariable ? upper : 1 - upper);
    return variable == turbulenceVariable ? mixture.turbulence : mixture.dissipation;
}

/// Grid 1 lies below the layer's middle plane and grid 2 above it; a single grid holds both.
Mesh_s layerMesh(const GridDims_s& size, bool isSingleGrid) {
    Mesh_s mesh;
    mesh.grids.assign(isSingleGrid ? 1 : 2, size);
    mesh.point = [size, isSingleGrid](const PointIndex_s& index) {
        const double bottom = index.grid == 0 ? -1 : 0;
        const double top = index.grid == 0 && !isSingleGrid ? 0 : 1;
        return Point_t{along(0, length, index.i, size.i), along(bottom, top, index.j, size.j),
                       along(0, 1, index.k, size.k)};
    };
    return mesh;
}

std::vector<double> layerScalars(Layout_e layout) {
    constexpr std::size_t firstGasConstant = 11;
    std::vector<double> scalars =
        referenceScalars(FileKind_e::OverflowSolution, layout, {upperSpeed, 0, 1e5, 2.5});
    scalars[firstGasConstant] = speciesGasConstant[0];
    scalars[firstGasConstant + 1] = speciesGasConstant[1];
    return scalars;
}

} // namespace

std::vector<SampleFile_s> mixingLayerFiles(const SampleOptions_s& options) {
    refuseBoundaries(options);
    refuseSteps(options);
    refuseSurface(options);
    const Layout_e layout = chooseLayout(options, {Layout_e::ThreeDWhole, Layout_e::ThreeDPlanes});
    const FileKind_e style = chooseStyle(options, {FileKind_e::OverflowSolution});
    const Mesh_s mesh = layerMesh(chooseSize(options, layout, {31, 13, 5}), options.isSingleGrid);
    SampleFile_s solution = flowFile(options, "overflow", style, layout, mesh, FlowField(), {});
    solution.description.numVars = turbulenceVariable + 2;
    solution.description.numSpecies = speciesCount;
    solution.description.scalars.assign(mesh.grids.size(), layerScalars(layout));
    solution.description.value = [point = mesh.point](std::int32_t grid, std::int32_t variable,
                                                      std::int32_t i, std::int32_t j,
                                                      std::int32_t k) {
        const Point_t place = point({grid, i, j, k});
        return mixtureVariable(mixtureAt(place[0], place[1]), variable);
    };
    return {gridFile(options, "overflow", layout, mesh), solution};
}

} // namespace quorvia::plot3dsample
