#include "flow/PointFormulas.h"

#include <cmath>

namespace plot3dlib {

namespace {

double squaredSpeedAt(const FlowPoint_s& point) {
    const Vector velocity = velocityAt(point);
    return dot(velocity, velocity);
}

double freeStreamPressure(const FlowConstants_s& constants) {
    return 1.0 / constants.freeStreamGamma; // density and speed of sound are 1
}

} // namespace

Vector velocityAt(const FlowPoint_s& point) {
    return scaled(point.momentum, 1.0 / point.density);
}

double pressureAt(const FlowPoint_s& point) {
    return (point.gamma - 1.0) * (point.energy - 0.5 * point.density * squaredSpeedAt(point));
}

double densityAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return point.density;
}

double pressureAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return pressureAt(point);
}

double pressureCoefficientAt(const FlowPoint_s& point, const FlowConstants_s& constants) {
    const double mach = constants.freeStreamMach;
    return (pressureAt(point) - freeStreamPressure(constants)) / (0.5 * mach * mach);
}

double machNumberAt(const FlowPoint_s& point, const FlowConstants_s& constants) {
    return velocityMagnitudeAt(point, constants) / soundSpeedAt(point, constants);
}

double soundSpeedAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return std::sqrt(point.gamma * pressureAt(point) / point.density);
}

double temperatureAt(const FlowPoint_s& point, const FlowConstants_s& constants) {
    return pressureAt(point) / (point.density * constants.gasConstant);
}

double enthalpyAt(const FlowPoint_s& point, const FlowConstants_s& constants) {
    return point.gamma * internalEnergyAt(point, constants);
}

double internalEnergyAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return point.energy / point.density - 0.5 * squaredSpeedAt(point);
}

double kineticEnergyAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return 0.5 * squaredSpeedAt(point);
}

double velocityMagnitudeAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return std::sqrt(squaredSpeedAt(point));
}

double stagnationEnergyAt(const FlowPoint_s& point, const FlowConstants_s&) {
    return point.energy;
}

double entropyAt(const FlowPoint_s& point, const FlowConstants_s& constants) {
    const double heatCapacity = constants.gasConstant / (point.gamma - 1.0);
    const double pressureRatio = pressureAt(point) / freeStreamPressure(constants);
    return heatCapacity * std::log(pressureRatio / std::pow(point.density, point.gamma));
}

} // namespace plot3dlib
