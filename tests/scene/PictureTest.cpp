// What is under the pixels of a picture.
#include <cmath>

#include "PictureFixture.h"
#include "colours/ColourMap.h"

namespace plot3dtest {
namespace {

using plot3d::scene::ColourMap;
using plot3d::scene::Mesh_s;
using plot3d::scene::OffscreenPainter;

class Pictures : public PictureTest {
protected:
    static View_s bareView() {
        View_s view = smallView();
        view.axes = view.title = view.legend = false;
        return view;
    }
};

TEST_F(Pictures, HaveTheColoursOfTheFilesValues) {
    const DataSet data = opened({"vortex", "--steps", "1"});
    const Content content = prepared(data, smallView());
    const Pixels_s pixels = painted(content);
    const ColourMap map = ColourMap::named("viridis");
    const plot3d::Extent size = data.zones()[0].size;
    const auto x = data.values(0, 0);
    const auto y = data.values(0, 1);
    const auto density = data.values(0, data.variable("RHO"));
    int compared = 0;
    for (std::int64_t j = 3; j < size.j - 3; j += 2)
        for (std::int64_t i = 3; i < size.i - 3; i += 2, ++compared) {
            const auto at = static_cast<std::size_t>(j * size.i + i);
            const auto [column, row] = pixelOf(*content, x[at], y[at], 0);
            const double share = map.fractionOf(pixels.at(column, row));
            const double value =
                content->range.least + share * (content->range.most - content->range.least);
            EXPECT_NEAR(value, density[at], 0.03 * (content->range.most - content->range.least))
                << i << " " << j;
        }
    EXPECT_GT(compared, 200);
}

TEST_F(Pictures, ShowPaperWhereBlankedCellsAreHidden) {
    const DataSet data = numbered({9, 9, 1}, {{4, 4, 0}});
    View_s view = smallView();
    view.plot = plot3d::scene::PlotKind_e::Plane;
    const Content content = prepared(data, view);
    const auto [column, row] = pixelOf(*content, 4 + 1, 4, 0);
    EXPECT_EQ(painted(content).at(column, row), (std::array<std::uint8_t, 3>{255, 255, 255}));
    view.blank = plot3d::scene::BlankWish_e::Show;
    EXPECT_NE(painted(data, view).at(column, row), (std::array<std::uint8_t, 3>{255, 255, 255}));
}

// What the comparison with stored pictures is for.
TEST_F(Pictures, DifferByAWrongColour) {
    const DataSet data = opened({"cylinder"});
    View_s view = smallView();
    const Pixels_s right = painted(data, view);
    view.range = plot3d::scene::Range_s{0.9, 1.02};
    EXPECT_GT(differenceOf(right, painted(data, view)).blocks, 20);
    view = smallView();
    view.map = "cividis";
    EXPECT_GT(differenceOf(right, painted(data, view)).blocks, 20);
}

TEST_F(Pictures, DifferByAMissingZone) {
    const DataSet data = opened({"cylinder", "--iblank"});
    const Content content = prepared(data, smallView());
    for (const std::size_t missing : {0U, 1U}) {
        auto broken = std::make_shared<SceneContent_s>(*content);
        broken->parts.erase(broken->parts.begin() + static_cast<std::ptrdiff_t>(missing));
        EXPECT_GT(differenceOf(painted(content), painted(Content(broken))).blocks, 0) << missing;
    }
}

TEST_F(Pictures, DifferByAHole) {
    const DataSet data = opened({"vortex", "--steps", "1"});
    const Content content = prepared(data, smallView());
    auto mesh = std::make_shared<Mesh_s>(*content->parts[0].mesh);
    constexpr std::ptrdiff_t cornersOfOneCell = 4;
    mesh->quads.erase(mesh->quads.begin(), mesh->quads.begin() + cornersOfOneCell);
    auto broken = std::make_shared<SceneContent_s>(*content);
    broken->parts[0].mesh = mesh;
    EXPECT_GT(differenceOf(painted(content), painted(Content(broken))).blocks, 0);
}

TEST_F(Pictures, OfOneViewAreEqual) {
    const DataSet data = opened({"cylinder", "--iblank"});
    const Content content = prepared(data, smallView());
    OffscreenPainter painter;
    const Pixels_s first = painter.paint(content);
    EXPECT_EQ(first.rgb, painter.paint(content).rgb);
    EXPECT_EQ(first.rgb, painted(content).rgb);
}

TEST_F(Pictures, AreTheSameAfterAViewWasTurnedAndTurnedBack) {
    const DataSet data = opened({"cylinder"}); // overset grids, whose surfaces lie in one another
    const Content content = prepared(data, smallView());
    auto turned = std::make_shared<SceneContent_s>(*content);
    turned->view.camera.direction = {2, 1, 1.5};
    OffscreenPainter painter;
    const Pixels_s first = painter.paint(content);
    EXPECT_NE(painter.paint(turned).rgb, first.rgb);
    EXPECT_EQ(painter.paint(content).rgb, first.rgb);
}

// Where surfaces lie in one another the first zone is in front, in one piece.
TEST_F(Pictures, ShowCoincidentSurfacesWithoutMottling) {
    const DataSet data = opened({"cylinder"});
    View_s view = bareView();
    view.colour = "none";
    view.surfaces = {{plot3d::scene::SurfaceKind_e::K, {-1}, {}}};
    view.camera.direction = {-0.3, -0.5, 1};
    const Pixels_s both = painted(data, view);
    view.zones = {1};
    const Content first = prepared(data, view);
    const Content all = prepared(data, [&] {
        View_s whole = view;
        whole.zones.clear();
        return whole;
    }());
    int compared = 0;
    const Mesh_s& mesh = *first->parts[0].mesh;
    const plot3d::Extent size = data.zones()[0].size;
    const auto own = both.at(0, 0);
    std::array<std::uint8_t, 3> colour = own;
    for (std::int64_t j = 2; j < size.j - 2; ++j)
        for (std::int64_t i = 0; i < size.i; i += 3, ++compared) {
            const double* at = &mesh.points[3 * static_cast<std::size_t>(j * size.i + i)];
            const auto [column, row] = pixelOf(*all, at[0], at[1], at[2]);
            if (compared == 0)
                colour = both.at(column, row);
            EXPECT_EQ(both.at(column, row), colour) << i << " " << j;
        }
    EXPECT_GT(compared, 300);
    EXPECT_NE(colour, own);
}

TEST_F(Pictures, AreWholePngFiles) {
    const DataSet data = opened({"ball"});
    const Pixels_s pixels = painted(data, smallView());
    const auto bytes = OffscreenPainter().png(pixels);
    folder_.write("ball.png", std::string(bytes.begin(), bytes.end()));
    EXPECT_EQ(readPicture(folder_.file("ball.png")).rgb, pixels.rgb);
}

} // namespace
} // namespace plot3dtest
