// VTK's camera as a projection, and back.
#pragma once

#include "annotation/Projection.h"

class vtkCamera;

namespace plot3d::scene {

/// In a window of that size. `depth`: how far the data reach from the centre.
void setCamera(vtkCamera& camera, const Projection_s& projection, int width, int height,
               double depth);

/// What the camera shows in a window of that size.
Projection_s projectionOf(vtkCamera& camera, int width, int height);

} // namespace plot3d::scene
