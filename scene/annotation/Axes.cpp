#include "annotation/Axes.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "annotation/Ticks.h"

namespace plot3d::scene {

namespace {

constexpr double numberSize = 15;
constexpr double nameSize = 18;
constexpr double tickLength = 6;

/// An edge of the box along `axis`, in pixels from its low to its high end.
struct Edge_s {
    std::size_t axis = 0;
    Pixel low = {};
    Pixel high = {};

    double length() const { return std::hypot(high[0] - low[0], high[1] - low[1]); }
    Pixel at(double share) const {
        return {low[0] + share * (high[0] - low[0]), low[1] + share * (high[1] - low[1])};
    }
};

double boundAt(const Bounds_s& bounds, std::size_t axis, bool isHigh) {
    return isHigh ? bounds.most[axis] : bounds.least[axis];
}

/// Of the two edges along an axis that lie on the outline of the box, the lower one; of an upright
/// axis the left one. Nothing if the axis is seen end on.
std::optional<Edge_s> outerEdge(std::size_t axis, const Bounds_s& bounds,
                                const Projection_s& projection) {
    const std::size_t one = (axis + 1) % 3;
    const std::size_t other = (axis + 2) % 3;
    std::optional<Edge_s> best;
    for (const bool oneHigh : {false, true})
        for (const bool otherHigh : {false, true}) {
            const bool oneFaces = (projection.towards[one] > 1e-9) == oneHigh;
            const bool otherFaces = (projection.towards[other] > 1e-9) == otherHigh;
            if (oneFaces == otherFaces)
                continue;
            Vector3 point = {};
            point[one] = boundAt(bounds, one, oneHigh);
            point[other] = boundAt(bounds, other, otherHigh);
            point[axis] = bounds.least[axis];
            Edge_s edge;
            edge.axis = axis;
            edge.low = projection.pixelOf(point);
            point[axis] = bounds.most[axis];
            edge.high = projection.pixelOf(point);
            const bool isUpright =
                std::abs(edge.high[1] - edge.low[1]) > 3 * std::abs(edge.high[0] - edge.low[0]);
            const std::size_t direction = isUpright ? 0 : 1;
            if (!best || edge.at(0.5)[direction] < best->at(0.5)[direction])
                best = edge;
        }
    return best && best->length() > 24 ? best : std::nullopt;
}

/// Of length 1, away from the middle of the box.
Pixel outwards(const Edge_s& edge, const Pixel& middle) {
    const double length = edge.length();
    Pixel normal = {(edge.high[1] - edge.low[1]) / length, -(edge.high[0] - edge.low[0]) / length};
    const Pixel at = edge.at(0.5);
    if (normal[0] * (middle[0] - at[0]) + normal[1] * (middle[1] - at[1]) > 0)
        normal = {-normal[0], -normal[1]};
    return normal;
}

Pixel moved(const Pixel& from, double distance, const Pixel& direction) {
    return {from[0] + distance * direction[0], from[1] + distance * direction[1]};
}

TextMark_s beside(const Pixel& at, const Pixel& direction, std::string text, double size,
                  const Rgb& colour) {
    TextMark_s mark;
    mark.at = at;
    mark.text = std::move(text);
    mark.size = size;
    mark.colour = colour;
    mark.across = direction[0] < -0.4  ? Across_e::Right
                  : direction[0] > 0.4 ? Across_e::Left
                                       : Across_e::Centre;
    mark.along = direction[1] < -0.6  ? Along_e::Top
                 : direction[1] > 0.6 ? Along_e::Bottom
                                      : Along_e::Middle;
    return mark;
}

double widestLabel(const std::vector<Tick_s>& ticks) {
    std::size_t letters = 0;
    for (const Tick_s& tick : ticks)
        letters = std::max(letters, tick.label.size());
    return 0.55 * numberSize * static_cast<double>(letters);
}

void addAxis(const Edge_s& edge, const Range_s& range, const Pixel& direction,
             const Layout_s& layout, Drawing_s& drawing) {
    const double unit = layout.unit;
    drawing.lines.push_back({{edge.low, edge.high}, std::max(1.0, unit), layout.inks.soft});
    const int wanted = std::clamp(static_cast<int>(edge.length() / (90 * unit)), 1, 8);
    const std::vector<Tick_s> ticks = ticksOf(range, wanted);
    for (const Tick_s& tick : ticks) {
        const Pixel at = edge.at((tick.value - range.least) / (range.most - range.least));
        drawing.lines.push_back(
            {{at, moved(at, tickLength * unit, direction)}, std::max(1.0, unit), layout.inks.soft});
        drawing.texts.push_back(beside(moved(at, (tickLength + 5) * unit, direction), direction,
                                       tick.label, numberSize * unit, layout.inks.soft));
    }
    const double clearance =
        14 + numberSize * std::abs(direction[1]) + widestLabel(ticks) * std::abs(direction[0]);
    TextMark_s name =
        beside(moved(edge.at(0.5), (tickLength + clearance) * unit, direction), direction,
               std::string(1, "XYZ"[edge.axis]), nameSize * unit, layout.inks.strong);
    name.isBold = true;
    drawing.texts.push_back(name);
}

/// Lines with ticks along one side of a frame.
void addSide(const Frame_s& frame, bool isLower, const Layout_s& layout, Drawing_s& drawing) {
    const double unit = layout.unit;
    const Range_s& range = isLower ? frame.across : frame.along;
    const double length = isLower ? frame.area.width() : frame.area.height();
    const int wanted = std::clamp(static_cast<int>(length / ((isLower ? 110 : 80) * unit)), 1, 10);
    const Pixel direction = isLower ? Pixel{0, -1} : Pixel{-1, 0};
    const std::vector<Tick_s> ticks = ticksOf(range, wanted);
    for (const Tick_s& tick : ticks) {
        const double share = (tick.value - range.least) / (range.most - range.least);
        const Pixel at = isLower ? Pixel{frame.area.left + share * length, frame.area.bottom}
                                 : Pixel{frame.area.left, frame.area.bottom + share * length};
        drawing.lines.push_back(
            {{at, moved(at, tickLength * unit, direction)}, std::max(1.0, unit), layout.inks.soft});
        drawing.texts.push_back(beside(moved(at, (tickLength + 5) * unit, direction), direction,
                                       tick.label, numberSize * unit, layout.inks.soft));
    }
    TextMark_s name;
    name.text = frame.names[isLower ? 0 : 1];
    name.size = nameSize * unit;
    name.colour = layout.inks.strong;
    name.isBold = true;
    name.across = Across_e::Centre;
    name.isUpright = !isLower;
    name.along = isLower ? Along_e::Top : Along_e::Bottom;
    const double clearance = isLower ? 16 + numberSize : 18 + widestLabel(ticks);
    name.at = moved(isLower ? Pixel{frame.area.middle()[0], frame.area.bottom}
                            : Pixel{frame.area.left, frame.area.middle()[1]},
                    (tickLength + clearance) * unit, direction);
    drawing.texts.push_back(name);
}

} // namespace

void addSpaceAxes(const Bounds_s& bounds, const Layout_s& layout, const Projection_s& projection,
                  Drawing_s& drawing) {
    Vector3 centre = {};
    for (std::size_t axis = 0; axis < 3; ++axis)
        centre[axis] = (bounds.least[axis] + bounds.most[axis]) / 2;
    const Pixel middle = projection.pixelOf(centre);
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (const auto edge = outerEdge(axis, bounds, projection))
            addAxis(*edge, {bounds.least[axis], bounds.most[axis]}, outwards(*edge, middle), layout,
                    drawing);
}

void addFrame(const Frame_s& frame, const Layout_s& layout, Drawing_s& drawing) {
    const Area_s& area = frame.area;
    drawing.lines.push_back({{{area.left, area.bottom},
                              {area.right, area.bottom},
                              {area.right, area.top},
                              {area.left, area.top},
                              {area.left, area.bottom}},
                             std::max(1.0, layout.unit),
                             layout.inks.soft});
    addSide(frame, true, layout, drawing);
    addSide(frame, false, layout, drawing);
}

} // namespace plot3d::scene
