#include "plot3dsample/ShockTubeFlow.h"

#include <cmath>

namespace quorvia::plot3dsample {

namespace {

constexpr double g = airGamma;

double soundSpeed(const TubeState_s& state) {
    return std::sqrt(g * state.pressure / state.density);
}

bool isShock(const TubeState_s& state, double pressure) {
    return pressure > state.pressure;
}

/// Change of velocity across the wave that takes `state` to `pressure`.
double velocityChange(const TubeState_s& state, double pressure) {
    if (isShock(state, pressure)) {
        const double a = 2 / ((g + 1) * state.density);
        const double b = (g - 1) / (g + 1) * state.pressure;
        return (pressure - state.pressure) * std::sqrt(a / (pressure + b));
    }
    const double ratio = pressure / state.pressure;
    return 2 * soundSpeed(state) / (g - 1) * (std::pow(ratio, (g - 1) / (2 * g)) - 1);
}

double velocityGap(const TubeState_s& left, const TubeState_s& right, double pressure) {
    return velocityChange(left, pressure) + velocityChange(right, pressure) + right.velocity -
           left.velocity;
}

double starDensity(const TubeState_s& state, double pressure) {
    const double ratio = pressure / state.pressure;
    if (!isShock(state, pressure))
        return state.density * std::pow(ratio, 1 / g);
    const double q = (g - 1) / (g + 1);
    return state.density * (ratio + q) / (q * ratio + 1);
}

/// Inside the fan of a rarefaction that runs to the left.
TubeState_s insideFan(const TubeState_s& left, double speed) {
    const double sound = 2 / (g + 1) * (soundSpeed(left) + (g - 1) / 2 * (left.velocity - speed));
    const double ratio = sound / soundSpeed(left);
    return {left.density * std::pow(ratio, 2 / (g - 1)), speed + sound,
            left.pressure * std::pow(ratio, 2 * g / (g - 1))};
}

/// The side left of the contact.
TubeState_s sampleLeft(const TubeState_s& left, const StarState_s& star, double speed) {
    const TubeState_s behind = {starDensity(left, star.pressure), star.velocity, star.pressure};
    if (isShock(left, star.pressure)) {
        const double ratio = star.pressure / left.pressure;
        const double shock =
            left.velocity -
            soundSpeed(left) * std::sqrt((g + 1) / (2 * g) * ratio + (g - 1) / (2 * g));
        return speed < shock ? left : behind;
    }
    if (speed < left.velocity - soundSpeed(left))
        return left;
    if (speed > star.velocity - soundSpeed(behind))
        return behind;
    return insideFan(left, speed);
}

TubeState_s mirrored(const TubeState_s& state) {
    return {state.density, -state.velocity, state.pressure};
}

} // namespace

StarState_s solveStarState(const TubeState_s& left, const TubeState_s& right) {
    // The gap grows with the pressure, so halving the interval can't go wrong.
    double low = 0;
    double high = left.pressure + right.pressure;
    while (velocityGap(left, right, high) < 0)
        high *= 2;
    constexpr int halvings = 200;
    for (int step = 0; step < halvings; ++step) {
        const double middle = 0.5 * (low + high);
        (velocityGap(left, right, middle) < 0 ? low : high) = middle;
    }
    const double velocity = 0.5 * (left.velocity + right.velocity) +
                            0.5 * (velocityChange(right, high) - velocityChange(left, high));
    return {high, velocity};
}

TubeState_s sampleTube(const TubeState_s& left, const TubeState_s& right, const StarState_s& star,
                       double speed) {
    if (speed <= star.velocity)
        return sampleLeft(left, star, speed);
    return mirrored(sampleLeft(mirrored(right), {star.pressure, -star.velocity}, -speed));
}

} // namespace quorvia::plot3dsample
