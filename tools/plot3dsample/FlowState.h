// State of a gas at a point, and the variables that a solution file stores of it.
// Everywhere in the samples density is in units of the free stream's, velocity in units of its
// speed of sound, pressure and energy in units of its density times that speed squared: a free
// stream has density 1, pressure 1 / gamma and a speed equal to its Mach number.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "plot3dwriter/FileDescription.h"

namespace quorvia::plot3dsample {

using Point_t = std::array<double, 3>;

inline constexpr double airGamma = 1.4;

struct FlowState_s {
    double density = 1;
    Point_t velocity = {};
    double pressure = 1 / airGamma;
    double gamma = airGamma;
};

/// Internal and kinetic energy per volume.
double totalEnergy(const FlowState_s& state);

/// Variable of a solution, from 0: density, then momentum in as many directions as the layout has,
/// then total energy; behind them, for Overflow, gamma.
double solutionVariable(const FlowState_s& state, std::int32_t directions, std::int32_t variable);

/// 1, 2 or 3 directions.
std::int32_t directionCount(plot3dwriter::Layout_e layout);

struct Reference_s {
    double machNumber = 0;
    double angleOfAttack = 0; ///< degrees
    double reynoldsNumber = 0;
    double time = 0; ///< in units of the case's length over the speed of sound
};

/// The scalars of one grid for a kind of solution; none for a function file. An Overflow file of
/// more than two species needs its own gas constants, otherwise both are 1.
std::vector<double> referenceScalars(plot3dwriter::FileKind_e kind, plot3dwriter::Layout_e layout,
                                     const Reference_s& reference);

} // namespace quorvia::plot3dsample
