// Fields: which values they have, and who holds them. docs/values-on-demand.md
#include "sessions/rules/LoadRun.h"

namespace quorvia::sessions {

namespace {

/// An index above the last is the last.
std::int32_t resolved(std::int32_t index, std::int32_t count) {
    return index > count ? count : index < 1 ? index + count : index;
}

template <typename ValueAt>
std::shared_ptr<const Contents_s> makeContents(const Selection_s& points, bool isDeferred,
                                               ValueAt valueAt) {
    auto contents = std::make_shared<Contents_s>();
    contents->isDeferred = isDeferred;
    for (const std::int32_t k : points.k)
        for (const std::int32_t j : points.j)
            for (const std::int32_t i : points.i)
                contents->values.push_back(valueAt(i, j, k));
    return contents;
}

void setNodes(const FileModel_s& file, std::int32_t grid, Zone_s& zone) {
    auto nodes = std::make_shared<std::vector<std::int32_t>>();
    for (std::int64_t element = 0; element < zone.j; ++element)
        for (std::int32_t corner = 0; corner < zone.k; ++corner)
            nodes->push_back(nodeAt(file, grid, element, corner));
    zone.nodes = nodes;
}

} // namespace

std::vector<std::int32_t> indicesOf(const Range_s& range, std::int32_t count) {
    const std::int32_t last = resolved(range.end, count);
    std::vector<std::int32_t> indices;
    for (std::int32_t index = resolved(range.start, count); index < last; index += range.skip)
        indices.push_back(index - 1);
    indices.push_back(last - 1);
    return indices;
}

Selection_s selectionOf(const FileModel_s& file, std::int32_t grid, const LoadRun_s& load) {
    const GridDims_s& dims = file.grids[static_cast<std::size_t>(grid)];
    Selection_s points;
    if (layoutAsRead(file, load) == Layout_e::Unstructured) {
        points.i = indicesOf({}, dims.i);
        points.j = points.k = {0};
        return points;
    }
    const bool isLine = file.layout == Layout_e::Unstructured;
    const std::int32_t counts[] = {dims.i, isLine ? 1 : dims.j, isLine ? 1 : dims.k};
    std::vector<std::int32_t>* const axes[] = {&points.i, &points.j, &points.k};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const Range_s& range = load.options.ranges[axis];
        *axes[axis] = indicesOf(range, counts[axis]);
        points.isSubset |= resolved(range.start, counts[axis]) > 1 ||
                           resolved(range.end, counts[axis]) < counts[axis] || range.skip > 1;
    }
    return points;
}

void setFields(const FileModel_s& file, const LoadRun_s& load, DataSet_s& dataSet,
               std::int32_t firstZone, std::int32_t firstVariable) {
    const std::int32_t type = file.isDouble() ? doubleType : singleType;
    std::int32_t number = firstZone;
    for (std::int32_t grid = 0; grid < file.gridCount(); ++grid) {
        if (!load.selects(grid))
            continue;
        const Selection_s points = selectionOf(file, grid, load);
        if (number > dataSet.zoneCount() ||
            dataSet.zone(number).pointCount() != points.pointCount())
            throw Refusal("a grid that does not fit its zone");
        const bool isDeferred = !file.isText() && !points.isSubset &&
                                layoutAsRead(file, load) != Layout_e::ThreeDPlanes;
        for (std::int32_t variable = 0; variable < file.variableCount(); ++variable) {
            Field_s& field = dataSet.field(number, firstVariable + variable);
            if (field.type != type)
                throw Refusal("a variable of another precision");
            field.contents = makeContents(points, isDeferred, [&](auto i, auto j, auto k) {
                return valueAt(file, grid, variable, i, j, k);
            });
        }
        if (file.hasIBlank)
            dataSet.field(number, firstVariable + file.variableCount()).contents =
                makeContents(points, isDeferred, [&](auto i, auto j, auto k) -> double {
                    return iBlankAt(file, grid, i, j, k);
                });
        if (file.kind == FileKind_e::Grid && file.layout == Layout_e::Unstructured)
            setNodes(file, grid, dataSet.zone(number));
        ++number;
    }
}

// One array for both zones where the host allows it, a copy where it does not. Of the same type in
// either case.
void shareGrid(const LoadRun_s& load, const ExpectedHost_s& host, DataSet_s& dataSet,
               std::int32_t count, std::int32_t source, std::int32_t destination) {
    if (source == destination)
        return; // a step that goes onto its own zones
    const std::int32_t last = load.firstSolutionVariable() - 1;
    for (std::int32_t s = 0; s < count; ++s) {
        for (std::int32_t variable = 1; variable <= last; ++variable) {
            const Field_s& from = dataSet.field(source + s, variable);
            Field_s& to = dataSet.field(destination + s, variable);
            if (from.contents == nullptr)
                throw Refusal("an empty field can't be shared");
            if (dataSet.zone(source + s).pointCount() != dataSet.zone(destination + s).pointCount())
                throw Refusal("a zone of another size");
            to.type = from.type;
            to.contents = from.contents;
            if (!host.isSharingAllowed) {
                auto copy = std::make_shared<Contents_s>(*from.contents);
                copy->isDeferred = false;
                to.contents = copy;
            }
        }
    }
}

} // namespace quorvia::sessions
