// plot3d render without a picture: what it takes and refuses, and the views that it saves.
#include <fstream>
#include <iterator>

#include "program/ProgramRun.h"
#include "scene/SceneFixture.h"
#include "view/ViewJson.h"

namespace plot3d::program {
namespace {

class RenderCommandTest : public plot3dtest::SceneTest {
protected:
    /// The view that the arguments behind the files make.
    std::string savedView(std::vector<std::string> arguments) {
        const std::string file = folder_.file("saved.view");
        std::vector<std::string> all = {"render"};
        const std::vector<std::string> files = sample({"vortex", "--steps", "2"});
        all.insert(all.end(), files.begin(), files.end());
        all.insert(all.end(), arguments.begin(), arguments.end());
        all.insert(all.end(), {"--save-view", file, "--overwrite"});
        const Ended_s end = ended(all);
        if (end.code != ExitCode_Done)
            return end.err;
        std::ifstream in(file);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
};

TEST_F(RenderCommandTest, SavesWhatTheOptionsSay) {
    const scene::View_s view = scene::viewFromJson(
        savedView({"--color",   "mach",         "--range", "0:0.5",      "--map",     "cividis",
                   "--time",    "last",         "--zones", "2",          "--surface", "k=1,-1",
                   "--surface", "i=1",          "--lines", "--contours", "7",         "--vectors",
                   "velocity",  "--view",       "+x",      "--zoom",     "2",         "--size",
                   "640x480",   "--background", "black",   "--blank",    "show"}));
    EXPECT_EQ(view.colour, "mach");
    EXPECT_EQ(view.range, (scene::Range_s{0, 0.5}));
    EXPECT_EQ(view.time, 0.25);
    EXPECT_EQ(view.zones, (std::vector<std::size_t>{2}));
    ASSERT_EQ(view.surfaces.size(), 2U);
    EXPECT_EQ(view.surfaces[0].indices, (std::vector<std::int64_t>{1, -1}));
    EXPECT_TRUE(view.gridLines);
    EXPECT_EQ(view.contours, 7);
    EXPECT_EQ(view.camera.direction, (scene::Vector3{1, 0, 0}));
    EXPECT_EQ(view.camera.zoom, 2);
    EXPECT_EQ(view.size, (std::array<int, 2>{640, 480}));
    EXPECT_EQ(view.blank, scene::BlankWish_e::Show);
}

TEST_F(RenderCommandTest, TakesTheRangeFromOneZone) {
    const scene::View_s view = scene::viewFromJson(savedView({"--range", "zone=2"}));
    EXPECT_EQ(view.rangeOver, scene::RangeOver_e::Zone);
    EXPECT_EQ(view.rangeZone, 2U);
}

TEST_F(RenderCommandTest, BeginsWithAViewThatWasSaved) {
    const std::string first = savedView({"--color", "E", "--contours", "3"});
    const std::string file = folder_.write("first.view", first);
    EXPECT_EQ(savedView({"--view-file", file}), first);
    const scene::View_s changed =
        scene::viewFromJson(savedView({"--view-file", file, "--contours", "0"}));
    EXPECT_EQ(changed.colour, "E");
    EXPECT_EQ(changed.contours, 0);
}

TEST_F(RenderCommandTest, RefusesWhatCantBe) {
    EXPECT_EQ(savedView({"--surface", "l=3"}).rfind("plot3d: error: --surface: \"l=3\" can't", 0),
              0U);
    EXPECT_NE(savedView({"--map", "rainbow"}).find("there are viridis, cividis"),
              std::string::npos);
    EXPECT_NE(savedView({"--zones", "3"}).find("zone"), std::string::npos);
    const std::string file = folder_.write("bad.view", "{\"schema\": \"plot3d.view/2\"}");
    EXPECT_EQ(savedView({"--view-file", file}),
              "plot3d: error: " + file +
                  ": the view's \"schema\" can't be taken, expected plot3d.view/1, found "
                  "\"plot3d.view/2\"\n");
    EXPECT_EQ(ended({"render", "wing.x"}).err,
              "plot3d: error: no picture is named: -o PICTURE.png\n");
}

TEST_F(RenderCommandTest, WritesNoPngUnderAnotherEnding) {
    const Ended_s end = ended({"render", "wing.x", "-o", "wing.jpg"});
    EXPECT_EQ(end.code, ExitCode_Usage);
    EXPECT_EQ(end.err,
              "plot3d: error: pictures are PNG files, and \".jpg\" says something else: -o "
              "PICTURE.png\n");
}

TEST_F(RenderCommandTest, KeepsFilesThatAreThere) {
    const std::string picture = folder_.write("there.png", "precious");
    const Ended_s end = ended({"render", sample({"ball"})[1], "-o", picture});
    EXPECT_EQ(end.code, ExitCode_Failed);
    EXPECT_NE(end.err.find("there.png"), std::string::npos);
}

} // namespace
} // namespace plot3d::program
