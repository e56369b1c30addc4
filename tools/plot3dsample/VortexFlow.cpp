#include "plot3dsample/VortexFlow.h"

#include <cmath>

namespace quorvia::plot3dsample {

FlowState_s vortexFlow(double x, double y, double machNumber, double strength) {
    const double decay = std::exp(0.5 * (1 - x * x - y * y));
    // The pressure gradient that holds a gas of constant entropy on its circles.
    const double squaredSoundSpeed = 1 - 0.5 * (airGamma - 1) * strength * strength * decay * decay;
    FlowState_s state;
    state.velocity = {machNumber - strength * y * decay, strength * x * decay, 0};
    state.density = std::pow(squaredSoundSpeed, 1 / (airGamma - 1));
    state.pressure = state.density * squaredSoundSpeed / airGamma;
    return state;
}

} // namespace quorvia::plot3dsample
