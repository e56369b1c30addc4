#include "annotation/Annotation.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "annotation/Axes.h"
#include "annotation/LinePlot.h"
#include "annotation/Ticks.h"
#include "content/Words.h"

namespace plot3d::scene {

namespace {

class Annotation {
public:
    Annotation(const SceneContent_s& content, const Layout_s& layout,
               const Projection_s& projection)
        : content_(content), layout_(layout), projection_(projection) {}

    Drawing_s draw() {
        if (content_.view.plot == PlotKind_e::Lines)
            addCurves();
        else if (content_.view.axes)
            addAxes();
        if (content_.view.legend && content_.hasValues && content_.view.plot != PlotKind_e::Lines)
            addLegend();
        if (content_.view.title)
            addTitle();
        return std::move(drawing_);
    }

private:
    void addAxes() {
        if (content_.bounds.isEmpty())
            return;
        if (content_.view.plot == PlotKind_e::Space)
            return addSpaceAxes(content_.bounds, layout_, projection_, drawing_);
        addPlaneFrame();
    }

    /// Around the data, or what is seen of them in a view that is zoomed in.
    void addPlaneFrame() {
        const Bounds_s& bounds = content_.bounds;
        const Pixel low = projection_.pixelOf(bounds.least);
        const Pixel high = projection_.pixelOf(bounds.most);
        Frame_s frame;
        frame.area = {std::max(low[0], layout_.data.left), std::max(low[1], layout_.data.bottom),
                      std::min(high[0], layout_.data.right), std::min(high[1], layout_.data.top)};
        if (!(frame.area.width() > 1) || !(frame.area.height() > 1))
            return;
        const Vector3 least = projection_.pointAt({frame.area.left, frame.area.bottom});
        const Vector3 most = projection_.pointAt({frame.area.right, frame.area.top});
        frame.across = {least[0], most[0]};
        frame.along = {least[1], most[1]};
        frame.names = {"X", "Y"};
        hideBeyond(low, high);
        addFrame(frame, layout_, drawing_);
    }

    /// Data that reach beyond their area stay behind the margins.
    void hideBeyond(const Pixel& low, const Pixel& high) {
        const Area_s& area = layout_.data;
        const double width = layout_.width;
        const double height = layout_.height;
        if (low[0] < area.left - 1)
            addMargin({0, 0}, area.left, height);
        if (high[0] > area.right + 1)
            addMargin({area.right, 0}, width - area.right, height);
        if (low[1] < area.bottom - 1)
            addMargin({0, 0}, width, area.bottom);
        if (high[1] > area.top + 1)
            addMargin({0, area.top}, width, height - area.top);
    }

    void addMargin(const Pixel& corner, double width, double height) {
        drawing_.areas.push_back({corner, width, height, layout_.inks.paper});
    }

    void addLegend() {
        const Area_s& bar = layout_.legendBar;
        const double unit = layout_.unit;
        const ColourMap map = ColourMap::named(content_.view.map);
        const auto rows = static_cast<int>(bar.height());
        for (int row = 0; row < rows; ++row)
            drawing_.areas.push_back({{bar.left, bar.bottom + row},
                                      bar.width(),
                                      1,
                                      map.at((row + 0.5) / static_cast<double>(rows))});
        const Range_s& range = content_.range;
        const int wanted = std::clamp(static_cast<int>(bar.height() / (70 * unit)), 2, 8);
        for (const Tick_s& tick : ticksOf(range, wanted)) {
            const double share = (tick.value - range.least) / (range.most - range.least);
            const Pixel at = {bar.right, bar.bottom + share * bar.height()};
            drawing_.lines.push_back(
                {{at, {at[0] + 5 * unit, at[1]}}, std::max(1.0, unit), layout_.inks.soft});
            addText({at[0] + 10 * unit, at[1]}, tick.label, 15, layout_.inks.soft);
        }
        addText({bar.left, bar.top + 26 * unit}, content_.colourName, 18, layout_.inks.strong)
            .isBold = true;
        addText({bar.left, bar.bottom - 22 * unit}, content_.view.map, 13, layout_.inks.soft);
    }

    void addTitle() {
        const double top = layout_.height;
        const double unit = layout_.unit;
        addText({28 * unit, top - 34 * unit}, content_.title, 22, layout_.inks.strong).isBold =
            true;
        addText({28 * unit, top - 62 * unit}, content_.summary, 15, layout_.inks.soft);
    }

    TextMark_s& addText(const Pixel& at, const std::string& text, double size, const Rgb& colour) {
        TextMark_s mark;
        mark.at = at;
        mark.text = text;
        mark.size = size * layout_.unit;
        mark.colour = colour;
        drawing_.texts.push_back(std::move(mark));
        return drawing_.texts.back();
    }

    void addCurves() {
        const LinePlot plot(content_, layout_);
        for (std::size_t index = 0; index < content_.curves.size(); ++index)
            addCurve(content_.curves[index], plot, curveColour(index));
        addFrame(plot.frame(), layout_, drawing_);
        if (content_.view.legend && content_.curves.size() > 1)
            addNames();
    }

    /// In pieces: a value that can't be shown leaves a gap.
    void addCurve(const Curve_s& curve, const LinePlot& plot, const Rgb& colour) {
        LineMark_s line{{}, 2 * layout_.unit, colour};
        const auto end = [&] {
            if (line.points.size() > 1)
                drawing_.lines.push_back(line);
            line.points.clear();
        };
        for (std::size_t point = 0; point < curve.ordinates.size(); ++point) {
            if (const auto at = plot.pixelOf(curve.abscissas[point], curve.ordinates[point]))
                line.points.push_back(*at);
            else
                end();
        }
        end();
    }

    void addNames() {
        constexpr std::size_t mostNames = 12;
        const double unit = layout_.unit;
        double y = layout_.data.top - 22 * unit;
        for (std::size_t index = 0; index < std::min(mostNames, content_.curves.size()); ++index) {
            const double right = layout_.data.right - 16 * unit;
            drawing_.lines.push_back(
                {{{right - 30 * unit, y}, {right, y}}, 2 * unit, curveColour(index)});
            addText({right - 38 * unit, y}, content_.curves[index].name, 14, layout_.inks.soft)
                .across = Across_e::Right;
            y -= 22 * unit;
        }
    }

    const SceneContent_s& content_;
    const Layout_s& layout_;
    const Projection_s& projection_;
    Drawing_s drawing_;
};

} // namespace

Rgb curveColour(std::size_t index) {
    // Okabe and Ito's colours, which the colour-blind can tell apart.
    constexpr std::array<Rgb, 7> colours = {{{0, 114, 178},
                                             {213, 94, 0},
                                             {0, 158, 115},
                                             {204, 121, 167},
                                             {86, 180, 233},
                                             {230, 159, 0},
                                             {80, 80, 80}}};
    return colours[index % colours.size()];
}

Drawing_s annotationOf(const SceneContent_s& content, const Layout_s& layout,
                       const Projection_s& projection) {
    return Annotation(content, layout, projection).draw();
}

} // namespace plot3d::scene
