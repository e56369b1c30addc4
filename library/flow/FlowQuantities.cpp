#include "flow/FlowQuantities.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "facts/StopQuestion.h"
#include "flow/NodeGradients.h"
#include "flow/PointFormulas.h"

namespace plot3dlib {

namespace {

std::size_t pointCount(const Flow_s& flow) {
    return static_cast<std::size_t>(flow.size.count());
}

Components roomFor(const Flow_s& flow, std::size_t componentCount) {
    return Components(componentCount, std::vector<double>(pointCount(flow)));
}

double finite(double value) {
    return std::isfinite(value) ? value : std::numeric_limits<double>::quiet_NaN();
}

/// Calls `use(index, i, j, k)` for each point, I fastest.
template <typename Use>
void forEachPoint(const Flow_s& flow, const std::stop_token& stop, Use use) {
    std::size_t index = 0;
    for (std::int64_t k = 0; k < flow.size.k; ++k)
        for (std::int64_t j = 0; j < flow.size.j; ++j) {
            endIfStopped(stop);
            for (std::int64_t i = 0; i < flow.size.i; ++i)
                use(index++, i, j, k);
        }
}

template <double (*formula)(const FlowPoint_s&, const FlowConstants_s&)>
Components scalar(const Flow_s& flow, const FlowConstants_s& constants,
                  const std::stop_token& stop) {
    Components values = roomFor(flow, 1);
    forEachPoint(flow, stop, [&](std::size_t index, auto...) {
        values[0][index] = finite(formula(pointOf(flow, index, constants), constants));
    });
    return values;
}

void put(Components& components, std::size_t index, const Vector& value) {
    for (std::size_t axis = 0; axis < 3; ++axis)
        components[axis][index] = finite(value[axis]);
}

template <Vector (*formula)(const FlowPoint_s&)>
Components vectorOf(const Flow_s& flow, const FlowConstants_s& constants,
                    const std::stop_token& stop) {
    Components values = roomFor(flow, 3);
    forEachPoint(flow, stop, [&](std::size_t index, auto...) {
        put(values, index, formula(pointOf(flow, index, constants)));
    });
    return values;
}

Vector momentumAt(const FlowPoint_s& point) {
    return point.momentum;
}

Components pressureGradient(const Flow_s& flow, const FlowConstants_s& constants,
                            const std::stop_token& stop) {
    const Components pressure = scalar<pressureAt>(flow, constants, stop);
    const NodeGradients gradients(flow.size, flow.coordinates);
    Components values = roomFor(flow, 3);
    forEachPoint(flow, stop, [&](std::size_t index, auto... indices) {
        put(values, index, gradients.at(indices...).of(pressure[0]));
    });
    return values;
}

/// Calls `use(index, u, v, w)` with the gradients of the velocity's components.
template <typename Use>
void forEachVelocityGradient(const Flow_s& flow, const FlowConstants_s& constants,
                             const std::stop_token& stop, Use use) {
    const Components velocity = vectorOf<velocityAt>(flow, constants, stop);
    const NodeGradients gradients(flow.size, flow.coordinates);
    forEachPoint(flow, stop, [&](std::size_t index, auto... indices) {
        const NodeGradient gradient = gradients.at(indices...);
        use(index, gradient.of(velocity[0]), gradient.of(velocity[1]), gradient.of(velocity[2]));
    });
}

Vector curl(const Vector& u, const Vector& v, const Vector& w) {
    return {w[1] - v[2], u[2] - w[0], v[0] - u[1]};
}

Components vorticity(const Flow_s& flow, const FlowConstants_s& constants,
                     const std::stop_token& stop) {
    Components values = roomFor(flow, 3);
    forEachVelocityGradient(flow, constants, stop,
                            [&](std::size_t index, const Vector& u, const Vector& v,
                                const Vector& w) { put(values, index, curl(u, v, w)); });
    return values;
}

Components vorticityMagnitude(const Flow_s& flow, const FlowConstants_s& constants,
                              const std::stop_token& stop) {
    Components values = roomFor(flow, 1);
    forEachVelocityGradient(
        flow, constants, stop,
        [&](std::size_t index, const Vector& u, const Vector& v, const Vector& w) {
            const Vector vorticity = curl(u, v, w);
            values[0][index] = finite(std::sqrt(dot(vorticity, vorticity)));
        });
    return values;
}

Components swirl(const Flow_s& flow, const FlowConstants_s& constants,
                 const std::stop_token& stop) {
    Components values = roomFor(flow, 1);
    forEachVelocityGradient(
        flow, constants, stop,
        [&](std::size_t index, const Vector& u, const Vector& v, const Vector& w) {
            const FlowPoint_s point = pointOf(flow, index, constants);
            const Vector velocity = velocityAt(point);
            values[0][index] = finite(dot(curl(u, v, w), point.momentum) / dot(velocity, velocity));
        });
    return values;
}

Components strainRate(const Flow_s& flow, const FlowConstants_s& constants,
                      const std::stop_token& stop) {
    Components values = roomFor(flow, 3);
    forEachVelocityGradient(
        flow, constants, stop,
        [&](std::size_t index, const Vector& u, const Vector& v, const Vector& w) {
            put(values, index, {u[0], v[1], w[2]});
        });
    return values;
}

std::vector<FlowQuantity_s> makeQuantities() {
    constexpr FlowNeeds_s speed{.density = true, .momentum = true};
    constexpr FlowNeeds_s state{.density = true, .momentum = true, .energy = true};
    constexpr FlowNeeds_s speedInSpace{.density = true, .momentum = true, .coordinates = true};
    constexpr FlowNeeds_s stateInSpace{
        .density = true, .momentum = true, .energy = true, .coordinates = true};
    constexpr FlowNeeds_s stateAndMach{
        .density = true, .momentum = true, .energy = true, .freeStreamMach = true};
    const auto xyz = [](const std::string& name) {
        return std::vector<std::string>{name + "X", name + "Y", name + "Z"};
    };
    return {
        {100, "density", {"Density"}, {.density = true}, scalar<densityAt>},
        {110, "pressure", {"Pressure"}, state, scalar<pressureAt>},
        {111,
         "pressure-coefficient",
         {"PressureCoefficient"},
         stateAndMach,
         scalar<pressureCoefficientAt>},
        {112, "mach", {"MachNumber"}, state, scalar<machNumberAt>},
        {113, "sound-speed", {"SoundSpeed"}, state, scalar<soundSpeedAt>},
        {120, "temperature", {"Temperature"}, state, scalar<temperatureAt>},
        {130, "enthalpy", {"Enthalpy"}, state, scalar<enthalpyAt>},
        {140, "internal-energy", {"InternalEnergy"}, state, scalar<internalEnergyAt>},
        {144, "kinetic-energy", {"KineticEnergy"}, speed, scalar<kineticEnergyAt>},
        {153, "velocity-magnitude", {"VelocityMagnitude"}, speed, scalar<velocityMagnitudeAt>},
        {163,
         "stagnation-energy",
         {"StagnationEnergy"},
         {.energy = true},
         scalar<stagnationEnergyAt>},
        {170, "entropy", {"Entropy"}, state, scalar<entropyAt>},
        {184, "swirl", {"Swirl"}, speedInSpace, swirl},
        {200, "velocity", xyz("Velocity"), speed, vectorOf<velocityAt>},
        {201, "vorticity", xyz("Vorticity"), speedInSpace, vorticity},
        {202, "momentum", xyz("Momentum"), {.momentum = true}, vectorOf<momentumAt>},
        {210, "pressure-gradient", xyz("PressureGradient"), stateInSpace, pressureGradient},
        {211, "vorticity-magnitude", {"VorticityMagnitude"}, speedInSpace, vorticityMagnitude},
        {212, "strain-rate", xyz("StrainRate"), speedInSpace, strainRate},
    };
}

} // namespace

const std::vector<FlowQuantity_s>& flowQuantities() {
    static const std::vector<FlowQuantity_s> quantities = makeQuantities();
    return quantities;
}

} // namespace plot3dlib
