#include "annotation/LinePlot.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "content/WholeRange.h"

namespace plot3d::scene {

namespace {

Range_s abscissaRange(const std::vector<Curve_s>& curves) {
    std::optional<Range_s> range;
    for (const Curve_s& curve : curves)
        for (const double value : curve.abscissas)
            widen(range, value);
    if (!range)
        return {-0.5, 0.5};
    return range->least < range->most ? *range : Range_s{range->least - 0.5, range->least + 0.5};
}

/// With some room above and below, unless the range was given.
Range_s ordinateRange(const SceneContent_s& content) {
    if (content.view.range)
        return content.range;
    const double room = 0.05 * (content.range.most - content.range.least);
    return {content.range.least - room, content.range.most + room};
}

double shareOf(const Range_s& range, double value) {
    return (value - range.least) / (range.most - range.least);
}

} // namespace

LinePlot::LinePlot(const SceneContent_s& content, const Layout_s& layout) : content_(content) {
    frame_.area = layout.data;
    frame_.across = abscissaRange(content.curves);
    frame_.along = ordinateRange(content);
    frame_.names = content.abscissaNames;
}

std::optional<Pixel> LinePlot::pixelOf(double abscissa, double ordinate) const {
    const double across = shareOf(frame_.across, abscissa);
    const double along = shareOf(frame_.along, ordinate);
    if (!(across >= 0 && across <= 1 && along >= 0 && along <= 1))
        return std::nullopt;
    return Pixel{frame_.area.left + across * frame_.area.width(),
                 frame_.area.bottom + along * frame_.area.height()};
}

std::optional<CurvePoint_s> LinePlot::nearest(const Pixel& pixel, double reach) const {
    std::optional<CurvePoint_s> nearest;
    double least = reach;
    for (std::size_t index = 0; index < content_.curves.size(); ++index) {
        const Curve_s& curve = content_.curves[index];
        for (std::size_t point = 0; point < curve.ordinates.size(); ++point) {
            const auto at = pixelOf(curve.abscissas[point], curve.ordinates[point]);
            const double distance = at ? std::hypot((*at)[0] - pixel[0], (*at)[1] - pixel[1])
                                       : std::numeric_limits<double>::infinity();
            if (distance > least)
                continue;
            least = distance;
            nearest = {index, point};
        }
    }
    return nearest;
}

Place_s placeOf(const Curve_s& curve, std::size_t point) {
    const auto index = [along = static_cast<std::int64_t>(point)](const Range& range) {
        return range.count() == 1 ? range.first : range.first + along * range.step;
    };
    return {index(curve.box.i), index(curve.box.j), index(curve.box.k)};
}

} // namespace plot3d::scene
