// Surfaces of zones as plain arrays.
#include <algorithm>
#include <cmath>
#include <set>

#include "SceneFixture.h"
#include "surfaces/ElementFaces.h"
#include "surfaces/Planes.h"

namespace plot3dtest {
namespace {

using plot3d::Extent;
using plot3d::scene::Mesh_s;
using plot3d::scene::Place_s;

constexpr Extent size{5, 3, 7};

const Mesh_s& meshOf(const Content& content) {
    return *content->parts.at(0).mesh;
}

/// Every point of the mesh has the coordinates and the value of its place in the zone.
void expectAllInTheirPlaces(const Content& content) {
    const Mesh_s& mesh = meshOf(content);
    for (std::int64_t point = 0; point < mesh.pointCount(); ++point) {
        const Place_s place = mesh.placeOf(point);
        const auto [i, j, k] =
            std::array{static_cast<double>(place.i), static_cast<double>(place.j),
                       static_cast<double>(place.k)};
        const double* at = &mesh.points[3 * static_cast<std::size_t>(point)];
        ASSERT_EQ(at[0], i + j / 4 + k / 8);
        ASSERT_EQ(at[1], j);
        ASSERT_EQ(at[2], k);
        ASSERT_EQ(content->parts[0].values->values[static_cast<std::size_t>(point)],
                  i + 100 * j + 10000 * k);
    }
}

using Surfaces = SceneTest;

TEST_F(Surfaces, OfAZoneAreItsSixOuterPlanes) {
    const DataSet data = numbered(size);
    const Content content = prepared(data);
    EXPECT_EQ(meshOf(content).pointCount(), 2 * (5 * 3 + 5 * 7 + 3 * 7));
    EXPECT_EQ(meshOf(content).quads.size(), 4U * 2 * (4 * 2 + 4 * 6 + 2 * 6));
    expectAllInTheirPlaces(content);
}

TEST_F(Surfaces, AreThePlanesThatAreNamed) {
    const DataSet data = numbered(size);
    for (const char* surfaces : {"i=2", "j=-1", "k=1,4,-1", "i=1,3,4,5 j=2", "outer k=3"})
        expectAllInTheirPlaces(prepared(data, viewOf(surfaces)));
    EXPECT_EQ(meshOf(prepared(data, viewOf("k=1,4,-1"))).quads.size(), 4U * 3 * 4 * 2);
    EXPECT_EQ(meshOf(prepared(data, viewOf("k=1,-7 k=1,9"))).quads.size(), 4U * 4 * 2);
}

TEST_F(Surfaces, OfAPlaneAreThePlaneAndItsLines) {
    const DataSet data = numbered({5, 3, 1});
    EXPECT_EQ(meshOf(prepared(data)).quads.size(), 4U * 4 * 2);
    EXPECT_EQ(meshOf(prepared(data, viewOf("j=2"))).lines.size(), 2U * 4);
}

TEST_F(Surfaces, HideCellsWithABlankedCorner) {
    const DataSet data = numbered({5, 4, 1}, {{2, 1, 0}});
    const Content content = prepared(data);
    EXPECT_EQ(meshOf(content).hiddenCells, 4);
    EXPECT_EQ(meshOf(content).quads.size(), 4U * (4 * 3 - 4));
    View_s shown;
    shown.blank = plot3d::scene::BlankWish_e::Show;
    EXPECT_EQ(meshOf(prepared(data, shown)).hiddenCells, 0);
}

TEST_F(Surfaces, LeaveHiddenPointsOutOfTheRange) {
    const DataSet data = numbered({5, 4, 1}, {{4, 3, 0}});
    EXPECT_EQ(prepared(data)->range.most, 3 + 300);
    View_s coloured;
    coloured.blank = plot3d::scene::BlankWish_e::Colour;
    EXPECT_EQ(prepared(data, coloured)->range, (plot3d::scene::Range_s{0, 1}));
}

TEST_F(Surfaces, HaveNormalsOfLengthOneThatStandOnTheirCells) {
    const DataSet data = opened({"cylinder"});
    const Content content = prepared(data);
    const Mesh_s& mesh = meshOf(content);
    ASSERT_EQ(mesh.normals.size(), mesh.points.size());
    for (std::size_t at = 0; at < mesh.normals.size(); at += 3)
        ASSERT_NEAR(std::hypot(mesh.normals[at], mesh.normals[at + 1], mesh.normals[at + 2]), 1,
                    1e-5);
    EXPECT_NEAR(std::abs(mesh.normals[2]), 1, 1e-5); // of the first K plane
}

TEST_F(Surfaces, OfTetrahedraAreTheFacesOfOneElementAlone) {
    const auto faces =
        plot3d::scene::outerFaces(plot3d::ZoneKind::Tetrahedra, {0, 1, 2, 3, 1, 2, 3, 4});
    EXPECT_EQ(faces.triangles.size(), 3U * 6);
    const DataSet data = opened({"ball"});
    const Content content = prepared(data);
    const Mesh_s& mesh = meshOf(content);
    EXPECT_EQ(mesh.triangles.size(), 3U * 12 * 7 * 7);
    EXPECT_EQ(mesh.pointCount(), 6 * 7 * 7 + 2);
}

TEST_F(Surfaces, HaveFewerCellsForAViewThatTurns) {
    const DataSet data = opened({"vortex", "--size", "301x301", "--steps", "1"});
    const Content content = prepared(data);
    const Mesh_s& mesh = meshOf(content);
    EXPECT_GT(mesh.coarseQuads.size(), 0U);
    EXPECT_LT(mesh.coarseQuads.size(), mesh.quads.size() / 4);
    const std::set<std::int32_t> corners(mesh.coarseQuads.begin(), mesh.coarseQuads.end());
    EXPECT_EQ(*corners.begin(), 0);
    EXPECT_EQ(*corners.rbegin(), mesh.pointCount() - 1);
}

} // namespace
} // namespace plot3dtest
