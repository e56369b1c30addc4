#include "stage/CameraLink.h"

#include <vtkCamera.h>

namespace plot3d::scene {

namespace {

Vector3 crossed(const Vector3& a, const Vector3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

} // namespace

void setCamera(vtkCamera& camera, const Projection_s& projection, int width, int height,
               double depth) {
    const Vector3& centre = projection.centre;
    const Vector3& towards = projection.towards;
    camera.ParallelProjectionOn();
    camera.SetFocalPoint(centre.data());
    camera.SetPosition(centre[0] + depth * towards[0], centre[1] + depth * towards[1],
                       centre[2] + depth * towards[2]);
    camera.SetViewUp(projection.up.data());
    camera.SetParallelScale(height / 2.0 / projection.scale);
    camera.SetWindowCenter(1 - 2 * projection.at[0] / width, 1 - 2 * projection.at[1] / height);
}

Projection_s projectionOf(vtkCamera& camera, int width, int height) {
    Projection_s projection;
    camera.GetFocalPoint(projection.centre.data());
    Vector3 away = {};
    camera.GetDirectionOfProjection(away.data());
    projection.towards = {-away[0], -away[1], -away[2]};
    camera.OrthogonalizeViewUp();
    camera.GetViewUp(projection.up.data());
    projection.right = crossed(projection.up, projection.towards);
    projection.scale = height / 2.0 / camera.GetParallelScale();
    const double* centre = camera.GetWindowCenter();
    projection.at = {(1 - centre[0]) * width / 2, (1 - centre[1]) * height / 2};
    return projection;
}

} // namespace plot3d::scene
