#include "annotation/Projection.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plot3d::scene {

namespace {

double dot(const Vector3& a, const Vector3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector3 unit(const Vector3& vector) {
    const double length = std::hypot(vector[0], vector[1], vector[2]);
    return {vector[0] / length, vector[1] / length, vector[2] / length};
}

Vector3 sum(const Vector3& a, double factor, const Vector3& b) {
    return {a[0] + factor * b[0], a[1] + factor * b[1], a[2] + factor * b[2]};
}

/// An up that is not along the view.
Vector3 usableUp(const Camera_s& camera, const Vector3& towards) {
    for (const Vector3& up : {camera.up, Vector3{0, 0, 1}, Vector3{0, 1, 0}})
        if (std::hypot(up[0], up[1], up[2]) > 0 && std::abs(dot(unit(up), towards)) < 0.999)
            return up;
    return {1, 0, 0};
}

struct Spread_s {
    double least = std::numeric_limits<double>::infinity();
    double most = -std::numeric_limits<double>::infinity();

    void add(double value) {
        least = std::min(least, value);
        most = std::max(most, value);
    }
    double extent() const { return most - least; }
    double middle() const { return (least + most) / 2; }
};

struct Spreads_s {
    Spread_s right;
    Spread_s up;
    Spread_s towards;

    void add(const Projection_s& view, const Vector3& point) {
        right.add(dot(view.right, point));
        up.add(dot(view.up, point));
        towards.add(dot(view.towards, point));
    }
};

/// Corners of the box around everything: axes are drawn along it, so it is what must fit.
Spreads_s spreadsOf(const SceneContent_s& content, const Projection_s& view) {
    Spreads_s spreads;
    const Bounds_s& bounds = content.bounds;
    for (std::size_t corner = 0; corner < 8; ++corner)
        spreads.add(view, {corner % 2 == 0 ? bounds.least[0] : bounds.most[0],
                           corner / 2 % 2 == 0 ? bounds.least[1] : bounds.most[1],
                           corner / 4 == 0 ? bounds.least[2] : bounds.most[2]});
    return spreads;
}

double fitting(double room, double extent) {
    return extent > 0 ? room / extent : std::numeric_limits<double>::infinity();
}

} // namespace

Pixel Projection_s::pixelOf(const Vector3& point) const {
    const Vector3 from = sum(point, -1, centre);
    return {at[0] + scale * dot(from, right), at[1] + scale * dot(from, up)};
}

Vector3 Projection_s::pointAt(const Pixel& pixel) const {
    return sum(sum(centre, (pixel[0] - at[0]) / scale, right), (pixel[1] - at[1]) / scale, up);
}

Projection_s fitted(const SceneContent_s& content, const Camera_s& camera, const Area_s& area) {
    Projection_s view;
    if (content.view.plot == PlotKind_e::Space) {
        view.towards = unit(camera.direction);
        view.right = unit(cross(usableUp(camera, view.towards), view.towards));
        view.up = cross(view.towards, view.right);
    }
    view.at = area.middle();
    if (content.bounds.isEmpty())
        return view;
    const Spreads_s spreads = spreadsOf(content, view);
    view.centre =
        sum(sum(sum({}, spreads.right.middle(), view.right), spreads.up.middle(), view.up),
            spreads.towards.middle(), view.towards);
    if (camera.focus)
        view.centre = *camera.focus;
    const double fit = std::min(fitting(area.width(), spreads.right.extent()),
                                fitting(area.height(), spreads.up.extent()));
    view.scale = (std::isfinite(fit) ? fit : 1) * camera.zoom;
    return view;
}

} // namespace plot3d::scene
