#include "derive/FlowRegion.h"

#include <algorithm>

namespace plot3dlib {

namespace {

using plot3d::Box;
using plot3d::DataSet;
using plot3d::Extent;
using plot3d::Range;

/// The box of the grid's zone that the field of a boundary is.
std::optional<Box> boxInParent(const DataSet& data, std::size_t zone,
                               const FlowVariables_s::Variable& variable) {
    if (!variable || data.kind(zone, *variable) != plot3d::FieldKind::PartOf)
        return std::nullopt;
    return data.partOf(zone, *variable).box;
}

Range withNeighbours(const Range& range, std::int64_t size) {
    return {std::max<std::int64_t>(range.first - 1, 0), std::min(range.last + 1, size - 1), 1};
}

Range within(const Range& range, const Range& read) {
    return {range.first - read.first, range.last - read.first, range.step};
}

/// `range` counts the indices of `whole`: the same indices themselves.
Range composed(const Range& whole, const Range& range) {
    return {whole.first + range.first * whole.step, whole.first + range.last * whole.step,
            range.step * whole.step};
}

FlowRegion_s regionAround(const DataSet& data, std::size_t zone, const Box& box) {
    const Extent& size = data.zones()[zone].size;
    const Box read{withNeighbours(box.i, size.i), withNeighbours(box.j, size.j),
                   withNeighbours(box.k, size.k)};
    return {zone, read, {within(box.i, read.i), within(box.j, read.j), within(box.k, read.k)}};
}

} // namespace

std::optional<FlowRegion_s> regionWithNeighbours(const DataSet& data, std::size_t zone,
                                                 const Box& box, const FlowVariables_s& variables) {
    const std::optional<std::size_t> parent = data.zones()[zone].parent;
    if (!parent)
        return regionAround(data, zone, box);
    const std::optional<Box> part = boxInParent(data, zone, variables.momentum[0]);
    if (!part || boxInParent(data, zone, variables.coordinates[0]) != part)
        return std::nullopt;
    return regionAround(
        data, *parent,
        {composed(part->i, box.i), composed(part->j, box.j), composed(part->k, box.k)});
}

std::vector<double> wantedOf(const FlowRegion_s& region, std::vector<double> values) {
    const Extent size = region.box.extent();
    const Box& wanted = region.wanted;
    if (wanted == Box::whole(size))
        return values;
    std::vector<double> some;
    some.reserve(static_cast<std::size_t>(wanted.count()));
    for (std::int64_t k = wanted.k.first; k <= wanted.k.last; k += wanted.k.step)
        for (std::int64_t j = wanted.j.first; j <= wanted.j.last; j += wanted.j.step)
            for (std::int64_t i = wanted.i.first; i <= wanted.i.last; i += wanted.i.step)
                some.push_back(values[static_cast<std::size_t>((k * size.j + j) * size.i + i)]);
    return some;
}

} // namespace plot3dlib
