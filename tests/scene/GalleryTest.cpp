// The pictures of docs/gallery.md: of each sample case, and of the real data where they are there.
#include <cstdlib>
#include <filesystem>

#include "PictureFixture.h"

namespace plot3dtest {
namespace {

class Gallery : public PictureTest {
protected:
    void expectPicture(const std::string& name, const std::vector<std::string>& words,
                       const View_s& view = smallView()) const {
        const DataSet data = opened(words);
        expectAsStored(name, painted(data, view));
    }
};

TEST_F(Gallery, Cylinder) {
    View_s view = smallView();
    view.colour = "mach";
    expectPicture("cylinder", {"cylinder", "--iblank"}, view);
}

TEST_F(Gallery, Vortex) {
    View_s view = smallView();
    view.contours = 8;
    view.time = 0.5;
    expectPicture("vortex", {"vortex", "--steps", "3"}, view);
}

TEST_F(Gallery, ShockTube) {
    View_s view = smallView();
    view.time = 0.2;
    expectPicture("shocktube", {"shocktube", "--size", "401"}, view);
}

TEST_F(Gallery, Ball) {
    View_s view = smallView();
    view.gridLines = true;
    view.map = "magma";
    expectPicture("ball", {"ball"}, view);
}

TEST_F(Gallery, Overflow) {
    View_s view = smallView();
    view.colour = "RHO-C1";
    view.map = "cividis";
    expectPicture("overflow", {"overflow"}, view);
}

TEST_F(Gallery, Functions) {
    View_s view = smallView();
    view.surfaces = {{plot3d::scene::SurfaceKind_e::K, {1, 9}, {}},
                     {plot3d::scene::SurfaceKind_e::I, {1}, {}}};
    view.outlines = true;
    view.map = "coolwarm";
    expectPicture("functions", {"functions"}, view);
}

class RealGallery : public Gallery {
protected:
    static std::string file(const std::string& name) {
        const char* const folder = std::getenv("PLOT3D_REAL_DATA");
        return std::string(folder == nullptr ? PLOT3D_REAL_DATA_FOLDER : folder) + "/" + name;
    }
    void expectPictureOf(const std::string& name, const plot3d::FileLists& files,
                         const View_s& view = smallView(),
                         const plot3d::OpenOptions& options = {}) const {
        if (!std::filesystem::exists(files.grid.front()))
            GTEST_SKIP() << "the real data are not there";
        const DataSet data = DataSet::open(files, options);
        expectAsStored(name, painted(data, view));
    }
};

TEST_F(RealGallery, Combustor) {
    expectPictureOf("combustor", {{file("combxyz.bin")}, {file("combq.bin")}, {}, {}});
}

TEST_F(RealGallery, BluntFin) {
    View_s view = smallView();
    view.gridLines = true;
    expectPictureOf("bluntfin", {{file("bluntfinxyz.bin")}, {}, {}, {}}, view);
}

TEST_F(RealGallery, TwoGrids) {
    expectPictureOf("multi", {{file("multi-bin.xyz")}, {file("multi-bin.q")}, {}, {}});
}

TEST_F(RealGallery, SDuct) {
    View_s view = smallView();
    view.camera.direction = {1, -1.2, 0.7};
    view.camera.zoom = 1;
    expectPictureOf("sduct", {{file("sduct.new.x.bin")}, {}, {}, {}}, view);
}

TEST_F(RealGallery, Ramp) {
    expectPictureOf("ramp", {{file("ramp_noembed.fmt")}, {}, {}, {}});
}

TEST_F(RealGallery, Wing) {
    expectPictureOf("wing", {{file("m6_small.fmt")}, {}, {}, {}});
}

} // namespace
} // namespace plot3dtest
