#include "annotation/Layout.h"

#include <algorithm>
#include <cmath>

#include "view/ViewWords.h"

namespace plot3d::scene {

namespace {

Inks_s inksOn(const std::string& background) {
    const Vector3 colour = colourFromText(background);
    Inks_s inks;
    for (std::size_t part = 0; part < 3; ++part)
        inks.paper[part] = static_cast<std::uint8_t>(std::lround(255 * colour[part]));
    const double lightness = 0.30 * colour[0] + 0.59 * colour[1] + 0.11 * colour[2];
    if (lightness < 0.5) {
        inks.strong = {245, 245, 245};
        inks.soft = {200, 200, 200};
        inks.faint = {95, 95, 95};
    }
    return inks;
}

Area_s dataArea(const SceneContent_s& content, const Layout_s& layout) {
    const View_s& view = content.view;
    const double unit = layout.unit;
    Area_s area = {36 * unit, 36 * unit, layout.width - 36 * unit, layout.height - 36 * unit};
    if (view.title)
        area.top = layout.height - 96 * unit;
    if (view.legend && content.hasValues && view.plot != PlotKind_e::Lines)
        area.right = layout.width - 168 * unit;
    if (view.axes) {
        const bool isInSpace = view.plot == PlotKind_e::Space;
        area.left = (isInSpace ? 92 : 104) * unit;
        area.bottom = (isInSpace ? 84 : 76) * unit;
        if (isInSpace)
            area.right -= 56 * unit;
    }
    return area;
}

} // namespace

Layout_s layoutOf(const SceneContent_s& content, int width, int height, double pixelRatio) {
    Layout_s layout;
    layout.width = width;
    layout.height = height;
    // Letters stay readable in small pictures, at the cost of room.
    layout.unit = std::max(0.6 * pixelRatio, std::min(height / 960.0, width / 1280.0));
    layout.inks = inksOn(content.view.background);
    layout.data = dataArea(content, layout);
    const double barHeight = std::min(0.55 * height, layout.data.height());
    const double bottom = layout.data.middle()[1] - barHeight / 2;
    layout.legendBar = {width - 140 * layout.unit, bottom, width - 116 * layout.unit,
                        bottom + barHeight};
    return layout;
}

} // namespace plot3d::scene
