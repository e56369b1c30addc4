#include "content/Additions.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>

#include <plot3d/FieldReader.h>

namespace plot3d::scene {

namespace {

/// The values of the vector at the points of a box, one list for each component.
std::vector<std::vector<double>> vectorIn(const DataSet& data, std::size_t zone, const Box& box,
                                          const VectorQuantity_s& vector, const Gas& gas,
                                          const std::stop_token& stop) {
    if (vector.derived != nullptr)
        return derive(data, zone, *vector.derived, box, gas, stop);
    std::vector<std::vector<double>> components(
        3, std::vector<double>(static_cast<std::size_t>(box.count())));
    for (std::size_t axis = 0; axis < vector.variables.size(); ++axis)
        data.reader(zone, vector.variables[axis]).readAsDouble(box, components[axis].data(), stop);
    return components;
}

bool hasVector(const DataSet& data, std::size_t zone, const VectorQuantity_s& vector) {
    std::string reason;
    if (vector.derived != nullptr)
        return canDerive(data, zone, *vector.derived, reason);
    return std::all_of(vector.variables.begin(), vector.variables.end(), [&](std::size_t variable) {
        return data.kind(zone, variable) != FieldKind::Empty;
    });
}

class ArrowList {
public:
    explicit ArrowList(const Mesh_s& mesh) : mesh_(mesh), drawn_(drawnPoints(mesh)) {}

    void add(std::int64_t point, const std::array<double, 3>& direction) {
        const auto place = static_cast<std::size_t>(point);
        const double length = std::hypot(direction[0], direction[1], direction[2]);
        if ((!drawn_.empty() && drawn_[place] == 0) || !std::isfinite(length) || length == 0)
            return;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            arrows_->points.push_back(mesh_.points[3 * place + axis]);
            arrows_->directions.push_back(direction[axis]);
        }
        arrows_->longest = std::max(arrows_->longest, length);
    }

    std::shared_ptr<const Arrows_s> take() { return arrows_; }

private:
    const Mesh_s& mesh_;
    std::vector<char> drawn_;
    std::shared_ptr<Arrows_s> arrows_ = std::make_shared<Arrows_s>();
};

std::array<double, 3> at(const std::vector<std::vector<double>>& components, std::size_t place) {
    return {components[0][place], components[1][place], components[2][place]};
}

void spread(Range& range, std::int64_t step) {
    if (range.count() > 1)
        range.step = step;
}

void addOfPatch(const Patch_s& patch, std::int64_t step, ArrowList& arrows,
                const std::function<std::vector<std::vector<double>>(const Box&)>& read) {
    Box box = patch.box;
    for (Range* range : {&box.i, &box.j, &box.k})
        spread(*range, step);
    const auto components = read(box);
    const Extent size = patch.box.extent();
    std::size_t place = 0;
    for (std::int64_t k = 0; k < box.k.count(); ++k)
        for (std::int64_t j = 0; j < box.j.count(); ++j)
            for (std::int64_t i = 0; i < box.i.count(); ++i)
                arrows.add(patch.firstPoint + (k * box.k.step * size.j + j * box.j.step) * size.i +
                               i * box.i.step,
                           at(components, place++));
}

} // namespace

namespace {

/// The edges of cells with that many corners, as numbers whose order is that of their points.
void addEdges(const std::vector<std::int32_t>& cells, std::size_t each,
              std::vector<std::uint64_t>& edges) {
    for (std::size_t first = 0; first + each <= cells.size(); first += each)
        for (std::size_t corner = 0; corner < each; ++corner) {
            const auto one = static_cast<std::uint32_t>(cells[first + corner]);
            const auto other = static_cast<std::uint32_t>(cells[first + (corner + 1) % each]);
            if (one != other)
                edges.push_back(std::uint64_t{std::min(one, other)} << 32 | std::max(one, other));
        }
}

} // namespace

std::shared_ptr<const GridLines_s> gridLinesOf(const Mesh_s& mesh) {
    std::vector<std::uint64_t> edges;
    edges.reserve(mesh.quads.size() + mesh.triangles.size());
    addEdges(mesh.quads, 4, edges);
    addEdges(mesh.triangles, 3, edges);
    std::sort(edges.begin(), edges.end());
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    const auto grid = std::make_shared<GridLines_s>();
    grid->lines.reserve(2 * edges.size());
    for (const std::uint64_t edge : edges) {
        grid->lines.push_back(static_cast<std::int32_t>(edge >> 32));
        grid->lines.push_back(static_cast<std::int32_t>(edge & 0xffffffff));
    }
    return grid;
}

std::shared_ptr<const Arrows_s> arrowsOn(const DataSet& data, std::size_t zone, const Mesh_s& mesh,
                                         const VectorQuantity_s& vector, const Gas& gas,
                                         std::int64_t most, const std::stop_token& stop) {
    if (!hasVector(data, zone, vector) || mesh.pointCount() == 0)
        return nullptr;
    ArrowList arrows(mesh);
    const double share = static_cast<double>(mesh.pointCount()) / static_cast<double>(most);
    const auto read = [&](const Box& box) { return vectorIn(data, zone, box, vector, gas, stop); };
    if (mesh.nodes.empty()) {
        const auto step = std::max<std::int64_t>(1, std::llround(std::sqrt(share)));
        for (const Patch_s& patch : mesh.patches)
            addOfPatch(patch, step, arrows, read);
        return arrows.take();
    }
    const auto components = read(Box::whole(data.zones()[zone].size));
    const auto step = std::max<std::int64_t>(1, std::llround(share));
    for (std::int64_t point = 0; point < mesh.pointCount(); point += step)
        arrows.add(point, at(components, static_cast<std::size_t>(
                                             mesh.nodes[static_cast<std::size_t>(point)])));
    return arrows.take();
}

namespace {

/// The four edges of a zone along one direction (fewer of a zone that is thin) in one box.
Box edgesAlong(std::size_t axis, const Extent& size) {
    Box box = Box::whole(size);
    const std::array<Range*, 3> ranges = {&box.i, &box.j, &box.k};
    for (std::size_t other = 0; other < 3; ++other)
        if (other != axis && ranges[other]->last > 0)
            ranges[other]->step = ranges[other]->last;
    return box;
}

void addEdges(const Box& box, std::size_t axis, Outline_s& outline, std::size_t firstPoint) {
    const Extent size = box.extent();
    const std::array<std::int64_t, 3> counts = {size.i, size.j, size.k};
    const std::array<std::int64_t, 3> strides = {1, size.i, size.i * size.j};
    const std::size_t one = (axis + 1) % 3;
    const std::size_t other = (axis + 2) % 3;
    for (std::int64_t b = 0; b < counts[other]; ++b)
        for (std::int64_t a = 0; a < counts[one]; ++a) {
            std::vector<int> line;
            for (std::int64_t along = 0; along < counts[axis]; ++along)
                line.push_back(static_cast<int>(static_cast<std::int64_t>(firstPoint) +
                                                along * strides[axis] + a * strides[one] +
                                                b * strides[other]));
            outline.polylines.push_back(std::move(line));
        }
}

} // namespace

std::shared_ptr<const Outline_s> outlineOf(const DataSet& data, std::size_t zone,
                                           const std::stop_token& stop) {
    const Zone& itself = data.zones()[zone];
    const CoordinateVariables coordinates = coordinatesOf(data);
    if (itself.kind != ZoneKind::Ordered || !coordinates[0])
        return nullptr;
    const auto outline = std::make_shared<Outline_s>();
    const std::array<std::int64_t, 3> sizes = {itself.size.i, itself.size.j, itself.size.k};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        if (sizes[axis] == 1)
            continue;
        const Box box = edgesAlong(axis, itself.size);
        const std::size_t first = outline->points.size() / 3;
        const auto count = static_cast<std::size_t>(box.count());
        outline->points.resize(3 * (first + count));
        std::vector<double> values(count);
        for (std::size_t direction = 0; direction < 3; ++direction) {
            const auto& variable = coordinates[direction];
            if (!variable || data.kind(zone, *variable) == FieldKind::Empty)
                continue;
            data.reader(zone, *variable).readAsDouble(box, values.data(), stop);
            for (std::size_t point = 0; point < count; ++point)
                outline->points[3 * (first + point) + direction] = values[point];
        }
        addEdges(box, axis, *outline, first);
    }
    return outline;
}

} // namespace plot3d::scene
