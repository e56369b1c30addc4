#include "content/GrowingMesh.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

#include <plot3d/Error.h>
#include <plot3d/FieldReader.h>

#include "analysis/fields/IBlank.h"
#include "surfaces/PatchCells.h"
#include "surfaces/Planes.h"

namespace plot3d::scene {

namespace {

// What software draws smoothly while a view is turned.
constexpr std::int64_t coarseCells = 20'000;

void requireIndexable(std::int64_t points, const Zone& zone) {
    if (points > std::numeric_limits<std::int32_t>::max())
        throw Error(ErrorKind::Unsupported, "the surfaces of zone \"" + zone.name +
                                                "\" have more points than can be drawn");
}

bool hasField(const DataSet& data, std::size_t zone, const std::optional<std::size_t>& variable) {
    return variable && data.kind(zone, *variable) != FieldKind::Empty;
}

/// Points at their indices: of grids that are not there.
void placeAtIndices(Mesh_s& mesh, std::size_t axis) {
    for (std::int64_t point = 0; point < mesh.pointCount(); ++point) {
        const Place_s place = mesh.placeOf(point);
        const std::array<std::int64_t, 3> indices = {place.i + 1, place.j + 1, place.k + 1};
        mesh.points[3 * static_cast<std::size_t>(point) + axis] =
            static_cast<double>(indices[axis]);
    }
}

void readNodes(const DataSet& data, std::size_t zone, std::size_t variable,
               const std::vector<std::int32_t>& nodes, Destination_s destination,
               const std::stop_token& stop) {
    const Extent size = data.zones()[zone].size;
    std::vector<double> all(static_cast<std::size_t>(size.count()));
    data.reader(zone, variable).readAsDouble(Box::whole(size), all.data(), stop);
    for (std::size_t point = 0; point < nodes.size(); ++point)
        destination.values[point * destination.stride] =
            all[static_cast<std::size_t>(nodes[point])];
}

Bounds_s boundsOf(const Mesh_s& mesh) {
    Bounds_s bounds;
    const std::vector<double>& points = mesh.points;
    const std::vector<char> drawn = drawnPoints(mesh);
    for (std::size_t at = 0; at + 2 < points.size(); at += 3)
        if ((drawn.empty() || drawn[at / 3] != 0) &&
            std::isfinite(points[at] + points[at + 1] + points[at + 2]))
            bounds.add(points[at], points[at + 1], points[at + 2]);
    return bounds;
}

void addTriangleNormals(const std::vector<std::int32_t>& corners, std::size_t each,
                        const std::vector<double>& points, std::vector<float>& normals) {
    for (std::size_t first = 0; first + each <= corners.size(); first += each) {
        const auto at = [&](std::size_t corner, std::size_t axis) {
            return points[3 * static_cast<std::size_t>(corners[first + corner]) + axis];
        };
        std::array<double, 3> a = {};
        std::array<double, 3> b = {};
        for (std::size_t axis = 0; axis < 3; ++axis) {
            a[axis] = at(1, axis) - at(0, axis);
            b[axis] = at(each - 1, axis) - at(0, axis);
        }
        const std::array<double, 3> normal = {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2],
                                              a[0] * b[1] - a[1] * b[0]};
        for (std::size_t corner = 0; corner < each; ++corner)
            for (std::size_t axis = 0; axis < 3; ++axis)
                normals[3 * static_cast<std::size_t>(corners[first + corner]) + axis] +=
                    static_cast<float>(normal[axis]);
    }
}

void makeUnit(std::vector<float>& normals) {
    for (std::size_t at = 0; at + 2 < normals.size(); at += 3) {
        const float length = std::hypot(normals[at], normals[at + 1], normals[at + 2]);
        if (length > 0 && std::isfinite(length)) {
            for (std::size_t axis = 0; axis < 3; ++axis)
                normals[at + axis] /= length;
        } else {
            normals[at] = normals[at + 1] = 0;
            normals[at + 2] = 1;
        }
    }
}

} // namespace

struct GrowingMesh::PatchWork_s {
    PatchCells_s cells;
    Bounds_s bounds;
};

GrowingMesh::GrowingMesh(const DataSet& data, Wish_s wish)
    : data_(data), wish_(std::move(wish)), mesh_(std::make_shared<Mesh_s>()) {
    const Zone& zone = data.zones()[wish_.zone];
    std::int64_t points = 0;
    if (zone.kind == ZoneKind::Ordered) {
        mesh_->patches = patchesOf(zone.size, wish_.surfaces);
        points = pointCountOf(mesh_->patches);
    } else {
        faces_ = outerFaces(zone.kind, data.nodeMap(wish_.zone));
        std::vector<std::int32_t>& nodes = mesh_->nodes;
        nodes = faces_.triangles;
        nodes.insert(nodes.end(), faces_.quads.begin(), faces_.quads.end());
        std::sort(nodes.begin(), nodes.end());
        nodes.erase(std::unique(nodes.begin(), nodes.end()), nodes.end());
        points = static_cast<std::int64_t>(nodes.size());
    }
    requireIndexable(points, zone);
    mesh_->points.resize(3 * static_cast<std::size_t>(points));
}

void GrowingMesh::addReads(Pieces& pieces) {
    const CoordinateVariables coordinates = coordinatesOf(data_);
    const std::optional<std::size_t> iBlank = analysis::iBlankVariable(data_);
    const bool hasGrid = hasField(data_, wish_.zone, coordinates[0]);
    const auto add = [&](std::size_t variable, Destination_s destination) {
        if (mesh_->nodes.empty())
            return addFieldReads(pieces, data_, wish_.zone, variable, mesh_->patches, destination);
        pieces.push_back([this, variable, destination](const std::stop_token& stop) {
            readNodes(data_, wish_.zone, variable, mesh_->nodes, destination, stop);
        });
    };
    for (std::size_t axis = 0; axis < 3; ++axis)
        if (hasField(data_, wish_.zone, coordinates[axis]))
            add(*coordinates[axis], {mesh_->points.data() + axis, 3});
        else if (!hasGrid)
            placeAtIndices(*mesh_, axis);
    if (wish_.hidesBlanked && hasField(data_, wish_.zone, iBlank)) {
        blank_.resize(static_cast<std::size_t>(mesh_->pointCount()));
        add(*iBlank, {blank_.data(), 1});
    }
}

void GrowingMesh::addBuilding(Pieces& pieces) {
    if (wish_.isInSpace)
        mesh_->normals.resize(mesh_->points.size());
    if (!mesh_->nodes.empty()) {
        pieces.push_back([this](const std::stop_token&) { buildElements(); });
        return;
    }
    for (const Patch_s& patch : mesh_->patches) {
        patchWork_.push_back(std::make_shared<PatchWork_s>());
        pieces.push_back([this, &patch, work = patchWork_.back()](const std::stop_token&) {
            work->cells = cellsOf(patch, mesh_->points, blank_);
            if (wish_.isInSpace)
                fillNormals(patch, mesh_->points, mesh_->normals);
        });
    }
}

void GrowingMesh::buildElements() {
    const auto keep = [this](const std::vector<std::int32_t>& faces, std::size_t each,
                             std::vector<std::int32_t>& kept) {
        for (std::size_t first = 0; first + each <= faces.size(); first += each) {
            bool hides = false;
            std::array<std::int32_t, 4> corners = {};
            for (std::size_t corner = 0; corner < each; ++corner) {
                const auto point = std::lower_bound(mesh_->nodes.begin(), mesh_->nodes.end(),
                                                    faces[first + corner]) -
                                   mesh_->nodes.begin();
                corners[corner] = static_cast<std::int32_t>(point);
                const double* at = &mesh_->points[3 * static_cast<std::size_t>(point)];
                hides = hides || !std::isfinite(at[0] + at[1] + at[2]) ||
                        (!blank_.empty() && blank_[static_cast<std::size_t>(point)] == 0);
            }
            if (hides)
                ++mesh_->hiddenCells;
            else
                kept.insert(kept.end(), corners.begin(),
                            corners.begin() + static_cast<std::ptrdiff_t>(each));
        }
    };
    keep(faces_.triangles, 3, mesh_->triangles);
    keep(faces_.quads, 4, mesh_->quads);
    if (!wish_.isInSpace)
        return;
    addTriangleNormals(mesh_->triangles, 3, mesh_->points, mesh_->normals);
    addTriangleNormals(mesh_->quads, 4, mesh_->points, mesh_->normals);
    makeUnit(mesh_->normals);
}

void GrowingMesh::joinPatches() {
    std::int64_t cells = 0;
    for (const auto& work : patchWork_) {
        cells += static_cast<std::int64_t>(work->cells.quads.size()) / 4;
        mesh_->hiddenCells += work->cells.hidden;
        mesh_->lines.insert(mesh_->lines.end(), work->cells.lines.begin(), work->cells.lines.end());
    }
    mesh_->quads.reserve(4 * static_cast<std::size_t>(cells));
    for (const auto& work : patchWork_) {
        mesh_->quads.insert(mesh_->quads.end(), work->cells.quads.begin(), work->cells.quads.end());
        work->cells = PatchCells_s();
    }
    if (cells < 2 * coarseCells)
        return;
    const auto step = static_cast<std::int64_t>(
        std::ceil(std::sqrt(static_cast<double>(cells) / double{coarseCells})));
    for (const Patch_s& patch : mesh_->patches) {
        const PatchCells_s coarse = cellsOf(patch, mesh_->points, blank_, step);
        mesh_->coarseQuads.insert(mesh_->coarseQuads.end(), coarse.quads.begin(),
                                  coarse.quads.end());
    }
}

std::shared_ptr<const Mesh_s> GrowingMesh::take() {
    joinPatches();
    mesh_->bounds = boundsOf(*mesh_);
    return std::exchange(mesh_, nullptr);
}

} // namespace plot3d::scene
