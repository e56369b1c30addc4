#include "content/Curves.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <plot3d/Error.h>
#include <plot3d/FieldReader.h>

#include "content/WholeRange.h"
#include "surfaces/PatchReads.h"

namespace plot3d::scene {

namespace {

/// The line that the view holds, in a zone of that size; without one the direction of most points,
/// at the first indices of the others. Nothing if the zone has no such line.
std::optional<Box> lineIn(const Extent& size, const View_s& view) {
    const std::array<std::int64_t, 3> sizes = {size.i, size.j, size.k};
    Box box = Box::whole(size);
    const std::array<Range*, 3> ranges = {&box.i, &box.j, &box.k};
    const auto longest =
        static_cast<std::size_t>(std::max_element(sizes.begin(), sizes.end()) - sizes.begin());
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const std::int64_t held = view.line ? (*view.line)[axis] : (axis == longest ? 0 : 1);
        if (held == 0)
            continue;
        const std::int64_t index = held > 0 ? held - 1 : sizes[axis] + held;
        if (index < 0 || index >= sizes[axis])
            return std::nullopt;
        *ranges[axis] = {index, index, 1};
    }
    return box;
}

std::vector<double> fieldAlong(const DataSet& data, std::size_t zone, std::size_t variable,
                               const Box& box, const std::stop_token& stop) {
    std::vector<double> values(static_cast<std::size_t>(box.count()));
    data.reader(zone, variable).readAsDouble(box, values.data(), stop);
    return values;
}

double extentOf(const std::vector<double>& values) {
    std::optional<Range_s> range;
    for (const double value : values)
        widen(range, value);
    return range ? range->most - range->least : 0;
}

bool hasQuantity(const DataSet& data, std::size_t zone, const Quantity_s& quantity) {
    std::string reason;
    if (quantity.derived != nullptr)
        return canDerive(data, zone, *quantity.derived, reason);
    return data.kind(zone, *quantity.variable) != FieldKind::Empty;
}

class Curves {
public:
    Curves(const DataSet& data, const std::stop_token& stop, SceneContent_s& content)
        : data_(data), stop_(stop), content_(content) {}

    void add(std::size_t zone, const Box& box, std::vector<double> ordinates) {
        Curve_s curve{zone, data_.zones()[zone].name, box, {}, std::move(ordinates)};
        if (content_.curves.empty())
            axis_ = longestAxis(zone, box);
        const std::optional<std::size_t> variable = coordinatesOf(data_)[axis_];
        if (variable && data_.kind(zone, *variable) != FieldKind::Empty)
            curve.abscissas = fieldAlong(data_, zone, *variable, box, stop_);
        else
            for (std::size_t index = 1; index <= curve.ordinates.size(); ++index)
                curve.abscissas.push_back(static_cast<double>(index));
        content_.abscissaNames[0] = variable ? std::string(1, "XYZ"[axis_]) : "index";
        content_.curves.push_back(std::move(curve));
    }

private:
    std::size_t longestAxis(std::size_t zone, const Box& box) const {
        std::size_t longest = 0;
        double most = 0;
        const CoordinateVariables coordinates = coordinatesOf(data_);
        for (std::size_t axis = 0; axis < 3; ++axis) {
            if (!coordinates[axis] || data_.kind(zone, *coordinates[axis]) == FieldKind::Empty)
                continue;
            const double extent = extentOf(fieldAlong(data_, zone, *coordinates[axis], box, stop_));
            if (extent > most) {
                longest = axis;
                most = extent;
            }
        }
        return longest;
    }

    const DataSet& data_;
    const std::stop_token& stop_;
    SceneContent_s& content_;
    std::size_t axis_ = 0; // all curves are over that of the first
};

} // namespace

void addCurves(const DataSet& data, const Gas& gas, const Quantity_s& quantity,
               const std::stop_token& stop, SceneContent_s& content) {
    if (quantity.isNothing())
        throw Error(ErrorKind::Usage, "a plot of lines needs a variable: the data set has none "
                                      "beside coordinates, or none was wanted");
    Curves curves(data, stop, content);
    for (const ShownZone_s& shown : shownZones(data, content.view, content.timeStep)) {
        const std::optional<Box> box = lineIn(data.zones()[shown.zone].size, content.view);
        if (!box || !hasQuantity(data, shown.zone, quantity))
            continue;
        std::vector<double> values =
            quantity.derived != nullptr
                ? lengthsOf(derive(data, shown.zone, *quantity.derived, *box, gas, stop))
                : fieldAlong(data, shown.zone, *quantity.variable, *box, stop);
        curves.add(shown.zone, *box, std::move(values));
    }
    content.abscissaNames[1] = content.colourName;
    if (content.curves.empty())
        throw Error(ErrorKind::Usage,
                    "no zone that is shown has this line with values of " + quantity.name);
}

} // namespace plot3d::scene
