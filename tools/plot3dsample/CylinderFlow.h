// Compressible gas in the shape of the potential flow past a circular cylinder of radius 1 at the
// origin, the free stream along +X. The density follows from the speed by the isentropic relation,
// which for small Mach numbers is close to the true flow.
#pragma once

#include "plot3dsample/FlowState.h"

namespace quorvia::plot3dsample {

/// Inside the cylinder the gas is at rest.
FlowState_s cylinderFlow(double x, double y, double machNumber);

} // namespace quorvia::plot3dsample
