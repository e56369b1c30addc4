// Pictures as the painter makes them, and their comparison with stored ones.
#pragma once

#include <memory>
#include <string>

#include "SceneFixture.h"
#include "annotation/Layout.h"
#include "annotation/Projection.h"
#include "picture/OffscreenPainter.h"

namespace plot3dtest {

using plot3d::scene::Pixels_s;

/// Where two pictures differ: blocks of 8 x 8 pixels whose mean colours are further apart than
/// other drivers and fonts make them.
struct Difference_s {
    int blocks = 0;
    int firstColumn = -1; // pixel of the first such block
    int firstRow = -1;
};
Difference_s differenceOf(const Pixels_s& one, const Pixels_s& other);

/// Empty (0 x 0) if there is no such file.
Pixels_s readPicture(const std::string& file);

class PictureTest : public SceneTest {
protected:
    static Pixels_s painted(const Content& content) {
        return plot3d::scene::OffscreenPainter().paint(content);
    }
    Pixels_s painted(const DataSet& data, const View_s& view) const {
        return painted(prepared(data, view));
    }
    /// The pixel, from the upper left corner, at which a point is drawn.
    static std::array<int, 2> pixelOf(const SceneContent_s& content, double x, double y, double z);

    /// With a stored picture of docs/images/gallery; PLOT3D_UPDATE_GOLDEN writes it anew.
    static void expectAsStored(const std::string& name, const Pixels_s& pixels);
};

/// A view of the size that stored pictures have.
View_s smallView();

} // namespace plot3dtest
