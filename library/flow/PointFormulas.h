// Quantities that follow from the values at one point. docs/derived.md has the formulas and where
// they come from. Where one has no value the result is infinite or not a number.
#pragma once

#include "flow/Flow.h"
#include "flow/Vector.h"

namespace plot3dlib {

Vector velocityAt(const FlowPoint_s& point);
double pressureAt(const FlowPoint_s& point);

double densityAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double pressureAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double pressureCoefficientAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double machNumberAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double soundSpeedAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double temperatureAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double enthalpyAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double internalEnergyAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double kineticEnergyAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double velocityMagnitudeAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double stagnationEnergyAt(const FlowPoint_s& point, const FlowConstants_s& constants);
double entropyAt(const FlowPoint_s& point, const FlowConstants_s& constants);

} // namespace plot3dlib
