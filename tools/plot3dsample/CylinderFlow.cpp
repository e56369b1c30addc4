#include "plot3dsample/CylinderFlow.h"

#include <cmath>

namespace quorvia::plot3dsample {

namespace {

/// Points on the surface come out a rounding error inside it and still belong to the flow.
constexpr double surfaceTolerance = 1e-9;

Point_t potentialVelocity(double x, double y, double machNumber) {
    const double squaredRadius = x * x + y * y;
    if (squaredRadius < 1 - surfaceTolerance)
        return {};
    const double fourthPower = squaredRadius * squaredRadius;
    return {machNumber * (1 - (x * x - y * y) / fourthPower), -machNumber * 2 * x * y / fourthPower,
            0};
}

} // namespace

FlowState_s cylinderFlow(double x, double y, double machNumber) {
    FlowState_s state;
    state.velocity = potentialVelocity(x, y, machNumber);
    const double squaredSpeed =
        state.velocity[0] * state.velocity[0] + state.velocity[1] * state.velocity[1];
    const double squaredSoundSpeed =
        1 + 0.5 * (airGamma - 1) * (machNumber * machNumber - squaredSpeed);
    state.density = std::pow(squaredSoundSpeed, 1 / (airGamma - 1));
    state.pressure = state.density * squaredSoundSpeed / airGamma;
    return state;
}

} // namespace quorvia::plot3dsample
