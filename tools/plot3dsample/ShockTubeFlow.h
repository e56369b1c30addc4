// Exact solution of the Riemann problem of a perfect gas: two states at rest or in motion, left and
// right of a diaphragm that bursts at time 0.
#pragma once

#include "plot3dsample/FlowState.h"

namespace quorvia::plot3dsample {

/// One-dimensional states, velocity along +X.
struct TubeState_s {
    double density = 0;
    double velocity = 0;
    double pressure = 0;
};

/// Pressure and velocity between the two waves that run away from the diaphragm's place.
struct StarState_s {
    double pressure = 0;
    double velocity = 0;
};

/// The states must be of positive density and pressure, and near enough that no vacuum forms.
StarState_s solveStarState(const TubeState_s& left, const TubeState_s& right);

/// The state at `x` / time = `speed` from the diaphragm's place. At time 0 the speed is infinite.
TubeState_s sampleTube(const TubeState_s& left, const TubeState_s& right, const StarState_s& star,
                       double speed);

} // namespace quorvia::plot3dsample
