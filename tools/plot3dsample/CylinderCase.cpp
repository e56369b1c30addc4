// Two overset grids: grid 1 wraps the cylinder, grid 2 is the background that it lies on.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "plot3dsample/BoundaryText.h"
#include "plot3dsample/CylinderFlow.h"
#include "plot3dsample/FlowFiles.h"

namespace quorvia::plot3dsample {

namespace {

using plot3dwriter::GridDims_s;

constexpr double cylinderMachNumber = 0.2;
constexpr double outerRadius = 4;
constexpr double holeRadius = 2; ///< the background is cut out where the O-grid serves better
constexpr double span = 1;
constexpr std::array<double, 2> backgroundX = {-6, 10};
constexpr std::array<double, 2> backgroundY = {-6, 6};

/// I-blank values: what stands at a point besides a plain 1.
constexpr std::int32_t hole = 0;
constexpr std::int32_t field = 1;
constexpr std::int32_t wall = 2;
constexpr std::int32_t fromGrid1 = -1; ///< interpolated from the grid with this number
constexpr std::int32_t fromGrid2 = -2;

/// I runs clockwise round the cylinder, so that I, J (outwards) and K form a right-handed system.
Point_t bodyGridPoint(const GridDims_s& grid, const PointIndex_s& index) {
    const double angle = along(0, -2 * std::numbers::pi, index.i, grid.i);
    constexpr double clustering = 2;
    const double outwards =
        std::expm1(along(0, clustering, index.j, grid.j)) / std::expm1(clustering);
    const double radius = 1 + (outerRadius - 1) * outwards;
    return {radius * std::cos(angle), radius * std::sin(angle), along(0, span, index.k, grid.k)};
}

Point_t backgroundPoint(const GridDims_s& grid, const PointIndex_s& index) {
    return {along(backgroundX[0], backgroundX[1], index.i, grid.i),
            along(backgroundY[0], backgroundY[1], index.j, grid.j),
            along(0, span, index.k, grid.k)};
}

bool isInHole(const GridDims_s& grid, PointIndex_s index, std::int32_t iStep, std::int32_t jStep) {
    index.i += iStep;
    index.j += jStep;
    const Point_t point = backgroundPoint(grid, index);
    return std::hypot(point[0], point[1]) < holeRadius;
}

/// Points beside the hole get their values from the O-grid.
std::int32_t backgroundIBlank(const GridDims_s& grid, const PointIndex_s& index) {
    if (isInHole(grid, index, 0, 0))
        return hole;
    const bool besideHole = isInHole(grid, index, -1, 0) || isInHole(grid, index, 1, 0) ||
                            isInHole(grid, index, 0, -1) || isInHole(grid, index, 0, 1);
    return besideHole ? fromGrid1 : field;
}

std::int32_t bodyGridIBlank(const GridDims_s& grid, const PointIndex_s& index, bool isAlone) {
    if (index.j == 0)
        return wall;
    return index.j == grid.j - 1 && !isAlone ? fromGrid2 : field;
}

GridDims_s backgroundSize(const GridDims_s& bodyGrid) {
    // About as fine as the O-grid is along its outer edge.
    const std::int32_t iCount = std::max(4, bodyGrid.i - bodyGrid.i / 8);
    return {iCount, std::max(4, iCount - iCount / 4), bodyGrid.k};
}

Mesh_s cylinderMesh(const SampleOptions_s& options, Layout_e layout) {
    Mesh_s mesh;
    const GridDims_s bodyGrid = chooseSize(options, layout, {73, 31, 5});
    mesh.grids = {bodyGrid};
    if (!options.isSingleGrid)
        mesh.grids.push_back(backgroundSize(bodyGrid));
    const GridDims_s background = mesh.grids.back();
    mesh.point = [bodyGrid, background](const PointIndex_s& index) {
        return index.grid == 0 ? bodyGridPoint(bodyGrid, index)
                               : backgroundPoint(background, index);
    };
    const bool isAlone = options.isSingleGrid;
    mesh.iblank = [bodyGrid, background, isAlone](const PointIndex_s& index) {
        return index.grid == 0 ? bodyGridIBlank(bodyGrid, index, isAlone)
                               : backgroundIBlank(background, index);
    };
    return mesh;
}

/// What lies where; grid 1 alone is cut off in the free stream. Planes at both ends of the span are
/// boundaries only where there is one.
SampleFile_s cylinderBoundaries(const Mesh_s& mesh) {
    std::vector<SampleBoundary_s> boundaries = {{"wall", 1, "1 $ 1 1 1 $"}};
    if (mesh.grids.size() == 1) {
        boundaries.push_back({"subsonic_inflow", 1, "1 $ $ $ 1 $"});
    } else {
        boundaries.push_back({"subsonic_inflow", 2, "1 1 1 $ 1 $"});
        boundaries.push_back({"subsonic_outflow", 2, "$ $ 1 $ 1 $"});
    }
    const bool hasSpan = mesh.grids.front().k > 1;
    for (int grid = 1; hasSpan && grid <= static_cast<int>(mesh.grids.size()); ++grid) {
        boundaries.push_back({"symmetry", grid, "1 $ 1 $ 1 1"});
        boundaries.push_back({"symmetry", grid, "1 $ 1 $ $ $"});
    }
    return boundaryFile("cylinder", boundaries);
}

} // namespace

std::vector<SampleFile_s> cylinderFiles(const SampleOptions_s& options) {
    refuseSteps(options);
    refuseSurface(options);
    const Layout_e layout =
        chooseLayout(options, {Layout_e::ThreeDWhole, Layout_e::ThreeDPlanes, Layout_e::TwoD});
    const FileKind_e style = chooseStyle(options, stylesOf(layout));
    const Mesh_s mesh = cylinderMesh(options, layout);
    const FlowField flow = [point = mesh.point](const PointIndex_s& index) {
        const Point_t place = point(index);
        return cylinderFlow(place[0], place[1], cylinderMachNumber);
    };
    const Reference_s reference = {cylinderMachNumber, 0, 1e5, 0};
    std::vector<SampleFile_s> files = {
        gridFile(options, "cylinder", layout, mesh),
        flowFile(options, "cylinder", style, layout, mesh, flow, reference)};
    if (style == FileKind_e::Function)
        files.push_back(flowNameFile("cylinder", layout));
    if (options.hasBoundaries)
        files.push_back(cylinderBoundaries(mesh));
    return files;
}

} // namespace quorvia::plot3dsample
