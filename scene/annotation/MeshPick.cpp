#include "annotation/MeshPick.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace plot3d::scene {

namespace {

/// Shares of a cell's corners in a point of it.
template <std::size_t count>
using Shares = std::array<double, count>;

class MeshPick {
public:
    MeshPick(const Mesh_s& mesh, const Projection_s& projection, const Pixel& pixel)
        : mesh_(mesh), projection_(projection) {
        flat_.reserve(static_cast<std::size_t>(mesh.pointCount()));
        for (std::int64_t point = 0; point < mesh.pointCount(); ++point) {
            const Pixel at = projection.pixelOf(positionOf(point));
            flat_.push_back({at[0] - pixel[0], at[1] - pixel[1]});
        }
    }

    std::optional<MeshHit_s> find(double reach) {
        for (std::size_t first = 0; first < mesh_.quads.size(); first += 4) {
            const std::int32_t* const corners = &mesh_.quads[first];
            if (isBeside<4>(corners, 0))
                continue;
            tryTriangle({corners[0], corners[1], corners[2]});
            tryTriangle({corners[0], corners[2], corners[3]});
        }
        for (std::size_t first = 0; first < mesh_.triangles.size(); first += 3)
            if (const std::int32_t* const corners = &mesh_.triangles[first];
                !isBeside<3>(corners, 0))
                tryTriangle({corners[0], corners[1], corners[2]});
        for (std::size_t first = 0; first < mesh_.lines.size(); first += 2)
            if (const std::int32_t* const ends = &mesh_.lines[first]; !isBeside<2>(ends, reach))
                tryLine({ends[0], ends[1]}, reach);
        return best_;
    }

private:
    Vector3 positionOf(std::int64_t point) const {
        const double* at = &mesh_.points[3 * static_cast<std::size_t>(point)];
        return {at[0], at[1], at[2]};
    }
    const Pixel& flat(std::int32_t point) const { return flat_[static_cast<std::size_t>(point)]; }

    /// Whether all corners are on one side of the pixel, which is at 0, 0.
    template <int count>
    bool isBeside(const std::int32_t* corners, double reach) const {
        for (std::size_t axis = 0; axis < 2; ++axis) {
            bool isBelow = true;
            bool isAbove = true;
            for (int corner = 0; corner < count; ++corner) {
                const double at = flat(corners[corner])[axis];
                isBelow = isBelow && at < -reach;
                isAbove = isAbove && at > reach;
            }
            if (isBelow || isAbove)
                return true;
        }
        return false;
    }

    void tryTriangle(const std::array<std::int32_t, 3>& corners) {
        const Pixel& a = flat(corners[0]);
        const Pixel& b = flat(corners[1]);
        const Pixel& c = flat(corners[2]);
        const Shares<3> areas = {b[0] * c[1] - b[1] * c[0], c[0] * a[1] - c[1] * a[0],
                                 a[0] * b[1] - a[1] * b[0]};
        const double all = areas[0] + areas[1] + areas[2];
        const auto [least, most] = std::minmax_element(areas.begin(), areas.end());
        if (all == 0 || !std::isfinite(all) || (*least < 0 && *most > 0))
            return;
        take(corners, {areas[0] / all, areas[1] / all, areas[2] / all});
    }

    void tryLine(const std::array<std::int32_t, 2>& ends, double reach) {
        const Pixel& a = flat(ends[0]);
        const Pixel& b = flat(ends[1]);
        const Pixel along = {b[0] - a[0], b[1] - a[1]};
        const double squared = along[0] * along[0] + along[1] * along[1];
        const double share =
            squared > 0 ? std::clamp(-(a[0] * along[0] + a[1] * along[1]) / squared, 0.0, 1.0) : 0;
        const Pixel nearest = {a[0] + share * along[0], a[1] + share * along[1]};
        if (std::hypot(nearest[0], nearest[1]) <= reach)
            take(ends, {1 - share, share});
    }

    template <std::size_t count>
    void take(const std::array<std::int32_t, count>& corners, const Shares<count>& shares) {
        Vector3 position = {};
        for (std::size_t corner = 0; corner < count; ++corner) {
            const Vector3 at = positionOf(corners[corner]);
            for (std::size_t axis = 0; axis < 3; ++axis)
                position[axis] += shares[corner] * at[axis];
        }
        double depth = 0;
        for (std::size_t axis = 0; axis < 3; ++axis)
            depth += position[axis] * projection_.towards[axis];
        if (!std::isfinite(depth) || (best_ && depth <= best_->depth))
            return;
        best_ = {nearestOf(corners, position), depth};
    }

    template <std::size_t count>
    std::int64_t nearestOf(const std::array<std::int32_t, count>& corners,
                           const Vector3& position) const {
        return *std::min_element(corners.begin(), corners.end(), [&](auto one, auto other) {
            return distance(positionOf(one), position) < distance(positionOf(other), position);
        });
    }

    static double distance(const Vector3& one, const Vector3& other) {
        return std::hypot(one[0] - other[0], one[1] - other[1], one[2] - other[2]);
    }

    const Mesh_s& mesh_;
    const Projection_s& projection_;
    std::vector<Pixel> flat_; // of each point, from the pixel
    std::optional<MeshHit_s> best_;
};

} // namespace

std::optional<MeshHit_s> hitOf(const Mesh_s& mesh, const Projection_s& projection,
                               const Pixel& pixel, double reach) {
    return MeshPick(mesh, projection, pixel).find(reach);
}

} // namespace plot3d::scene
