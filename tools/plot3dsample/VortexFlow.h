// The isentropic vortex: an exact solution of the Euler equations, carried along unchanged.
#pragma once

#include "plot3dsample/FlowState.h"

namespace quorvia::plot3dsample {

/// State at the place (`x`, `y`) from the vortex's centre; it turns counter-clockwise, fastest at
/// radius 1, where the speed of turning is `strength`. The stream runs along +X.
FlowState_s vortexFlow(double x, double y, double machNumber, double strength);

} // namespace quorvia::plot3dsample
