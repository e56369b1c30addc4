#include "plot3dsample/FlowState.h"

namespace quorvia::plot3dsample {

using plot3dwriter::FileKind_e;
using plot3dwriter::Layout_e;

double totalEnergy(const FlowState_s& state) {
    const auto& [u, v, w] = state.velocity;
    const double kinetic = 0.5 * state.density * (u * u + v * v + w * w);
    return state.pressure / (state.gamma - 1) + kinetic;
}

double solutionVariable(const FlowState_s& state, std::int32_t directions, std::int32_t variable) {
    if (variable == 0)
        return state.density;
    if (variable <= directions)
        return state.density * state.velocity[static_cast<std::size_t>(variable - 1)];
    return variable == directions + 1 ? totalEnergy(state) : state.gamma;
}

std::int32_t directionCount(Layout_e layout) {
    if (layout == Layout_e::OneD)
        return 1;
    return layout == Layout_e::TwoD ? 2 : 3;
}

std::vector<double> referenceScalars(FileKind_e kind, Layout_e layout,
                                     const Reference_s& reference) {
    if (kind == FileKind_e::Grid || kind == FileKind_e::Function)
        return {};
    std::vector<double> scalars = {reference.machNumber, reference.angleOfAttack,
                                   reference.reynoldsNumber, reference.time};
    if (kind == FileKind_e::SwiftSolution && layout != Layout_e::OneD)
        scalars.push_back(0); // no rotating frame
    if (kind == FileKind_e::OverflowSolution) {
        const double mach = reference.machNumber;
        const double totalEnthalpy = 1 / (airGamma - 1) + 0.5 * mach * mach;
        constexpr double sideslip = 0;
        constexpr double temperature = 288.15; // kelvin
        constexpr double gasModel = 1;
        scalars.insert(scalars.end(), {airGamma, sideslip, temperature, gasModel, totalEnthalpy,
                                       totalEnthalpy, totalEnthalpy, 1, 1});
    }
    return scalars;
}

} // namespace quorvia::plot3dsample
