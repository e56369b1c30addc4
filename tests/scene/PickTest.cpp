// From a pixel back to the point of the grid.
#include <cmath>
#include <optional>
#include <vector>

#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkUnsignedCharArray.h>

#include "PictureFixture.h"
#include "annotation/LinePlot.h"
#include "stage/Stage.h"

namespace plot3dtest {
namespace {

using plot3d::scene::Camera_s;
using plot3d::scene::Detail_e;
using plot3d::scene::Picked_s;
using plot3d::scene::Stage;

class PickTest : public PictureTest {
protected:
    PickTest() {
        window_->OffScreenRenderingOn();
        window_->SetSize(480, 360);
        window_->AddRenderer(renderer_);
        stage_ = std::make_unique<Stage>(*renderer_);
    }
    void show(const Content& content) {
        stage_->show(content);
        window_->Render();
    }
    std::vector<unsigned char> readAll() {
        vtkNew<vtkUnsignedCharArray> colours;
        window_->GetPixelData(0, 0, 479, 359, 0, colours);
        return {colours->GetPointer(0), colours->GetPointer(0) + colours->GetNumberOfValues()};
    }
    std::vector<unsigned char> pixels() {
        window_->Render();
        return readAll();
    }
    std::optional<Picked_s> pickAt(double x, double y, double z) {
        const auto [column, row] = pixelOf(*stage_->content(), x, y, z);
        return stage_->pick(column, 359 - row);
    }

    vtkNew<vtkRenderer> renderer_;
    vtkNew<vtkRenderWindow> window_;
    std::unique_ptr<Stage> stage_; // goes ahead of its renderer
};

TEST_F(PickTest, TellsZoneIndicesCoordinatesAndValue) {
    const DataSet data = opened({"cylinder"});
    show(prepared(data, smallView()));
    const plot3d::Extent size = data.zones()[1].size;
    const plot3d::Box corner{{2, 2, 1}, {3, 3, 1}, {size.k - 1, size.k - 1, 1}};
    const double x = data.values(1, 0, corner)[0];
    const double y = data.values(1, 1, corner)[0];
    const double z = data.values(1, 2, corner)[0];
    const auto picked = pickAt(x, y, z);
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->zone, 1U);
    EXPECT_EQ(picked->place, (plot3d::scene::Place_s{2, 3, size.k - 1}));
    EXPECT_EQ(picked->position, (plot3d::scene::Vector3{x, y, z}));
    EXPECT_EQ(picked->value, data.values(1, data.variable("RHO"), corner)[0]);
}

TEST_F(PickTest, TellsNothingBesideTheSurfaces) {
    const DataSet data = opened({"cylinder"});
    show(prepared(data, smallView()));
    EXPECT_FALSE(stage_->pick(2, 2));
}

TEST_F(PickTest, TellsThePointOfACurve) {
    const DataSet data = opened({"shocktube"});
    const Content content = prepared(data, smallView());
    show(content);
    const auto& curve = content->curves.at(0);
    constexpr std::size_t point = 40;
    const auto pixel =
        plot3d::scene::LinePlot(*content, plot3d::scene::layoutOf(*content, 480, 360))
            .pixelOf(curve.abscissas[point], curve.ordinates[point]);
    const auto picked = stage_->pick((*pixel)[0], (*pixel)[1]);
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->zone, curve.zone);
    EXPECT_EQ(picked->place, (plot3d::scene::Place_s{point, 0, 0}));
    EXPECT_EQ(picked->value, data.values(curve.zone, data.variable(content->view.colour))[point]);
    EXPECT_FALSE(stage_->pick(2, 2));
}

TEST_F(PickTest, TellsTheFirstZoneWhereZonesLieInOneAnother) {
    const DataSet data = opened({"cylinder"});
    View_s view = smallView();
    view.camera.direction = {0, 0, 1};
    show(prepared(data, view));
    const plot3d::Extent size = data.zones()[0].size;
    const plot3d::Box outside{{2, 2, 1}, {size.j - 1, size.j - 1, 1}, {size.k - 1, size.k - 1, 1}};
    const auto picked = pickAt(data.values(0, 0, outside)[0], data.values(0, 1, outside)[0],
                               data.values(0, 2, outside)[0]);
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->zone, 0U);
}

TEST_F(PickTest, TellsThePointOfALineOfThePlane) {
    const DataSet data = numbered({5, 3, 1});
    const auto view = [] {
        View_s lines = viewOf("j=2");
        lines.size = {480, 360};
        return lines;
    }();
    show(prepared(data, view));
    const auto picked = pickAt(3 + 1 / 4.0, 1, 0);
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->place, (plot3d::scene::Place_s{3, 1, 0}));
    EXPECT_FALSE(pickAt(3, 2, 0));
}

TEST_F(PickTest, MarksThePointOfACurve) {
    const DataSet data = opened({"shocktube"});
    const Content content = prepared(data, smallView());
    show(content);
    const auto before = pixels();
    const auto& curve = content->curves.at(0);
    stage_->mark(plot3d::scene::Vector3{curve.abscissas[40], curve.ordinates[40], 0});
    EXPECT_NE(pixels(), before);
}

TEST_F(PickTest, TellsThePointAlsoFromTheCoarseSurfaces) {
    const DataSet data = opened({"vortex", "--size", "301x301", "--steps", "1"});
    show(prepared(data, smallView()));
    stage_->setDetail(Detail_e::Coarse);
    window_->Render();
    EXPECT_TRUE(pickAt(0, 0, 0));
}

TEST_F(PickTest, KeepsTheCameraWhenOtherValuesAreShown) {
    const DataSet data = opened({"cylinder"});
    View_s view = smallView();
    show(prepared(data, view));
    Camera_s camera;
    camera.direction = {1, 1, 1};
    camera.zoom = 2;
    stage_->setCamera(camera);
    view.colour = "pressure";
    show(prepared(data, view));
    EXPECT_NEAR(stage_->camera().zoom, 2, 1e-9);
    EXPECT_NEAR(stage_->camera().direction[0], std::sqrt(1.0 / 3), 1e-9);
}

TEST_F(PickTest, GoesBackToACameraThatWasSaved) {
    const DataSet data = opened({"cylinder"});
    show(prepared(data, smallView()));
    Camera_s camera;
    camera.direction = {0.2, -0.9, 0.4};
    camera.zoom = 3;
    camera.focus = {1, 0.5, 0};
    stage_->setCamera(camera);
    const Camera_s saved = stage_->camera();
    stage_->setCamera({});
    stage_->setCamera(saved);
    const Camera_s again = stage_->camera();
    EXPECT_NEAR(again.zoom, 3, 1e-9);
    for (std::size_t axis = 0; axis < 3; ++axis)
        EXPECT_NEAR((*again.focus)[axis], (*camera.focus)[axis], 1e-9);
}

TEST_F(PickTest, DrawsLinesInTheInkOfTheBackground) {
    const DataSet data = opened({"vortex", "--steps", "1"});
    plot3d::scene::Preparer preparer(data);
    View_s view = smallView();
    view.gridLines = true;
    view.vectors = "velocity";
    show(preparer.prepare(view));
    view.background = "black";
    show(preparer.prepare(view));
    const auto changed = readAll();
    Stage fresh(*renderer_);
    stage_ = nullptr;
    fresh.show(preparer.prepare(view));
    window_->Render();
    EXPECT_EQ(readAll(), changed);
}

TEST_F(PickTest, MarksAPoint) {
    const DataSet data = opened({"vortex", "--steps", "1"});
    show(prepared(data, smallView()));
    const auto before = pixels();
    stage_->mark(plot3d::scene::Vector3{0, 0, 0});
    EXPECT_NE(pixels(), before);
    stage_->mark(std::nullopt);
    EXPECT_EQ(pixels(), before);
}

} // namespace
} // namespace plot3dtest
