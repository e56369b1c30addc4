// Quantities that follow from the values at one point. docs/derived.md has the formulas and where
// they come from. Where one has no value the result is infinite or not a number.
#pragma once

#include "flow/Flow.h"
#include "flow/Vector.h"

namespace plot3dlib {

Vector velocityAt(const FlowPoint& point);
double pressureAt(const FlowPoint& point);

double densityAt(const FlowPoint& point, const FlowConstants& constants);
double pressureAt(const FlowPoint& point, const FlowConstants& constants);
double pressureCoefficientAt(const FlowPoint& point, const FlowConstants& constants);
double machNumberAt(const FlowPoint& point, const FlowConstants& constants);
double soundSpeedAt(const FlowPoint& point, const FlowConstants& constants);
double temperatureAt(const FlowPoint& point, const FlowConstants& constants);
double enthalpyAt(const FlowPoint& point, const FlowConstants& constants);
double internalEnergyAt(const FlowPoint& point, const FlowConstants& constants);
double kineticEnergyAt(const FlowPoint& point, const FlowConstants& constants);
double velocityMagnitudeAt(const FlowPoint& point, const FlowConstants& constants);
double stagnationEnergyAt(const FlowPoint& point, const FlowConstants& constants);
double entropyAt(const FlowPoint& point, const FlowConstants& constants);

} // namespace plot3dlib
