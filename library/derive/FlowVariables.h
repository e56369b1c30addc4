// Which variables of a data set are density, momentum, energy and so on, and whether a zone has
// what a formula needs. The auxiliary data of the data set tell (docs/variables.md).
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>

#include <plot3d/DataSet.h>

#include "flow/FlowQuantities.h"

namespace plot3dlib {

/// Indices from 0 of variables. Empty: the data set has none that is known to be this.
struct FlowVariables_s {
    using Variable = std::optional<std::size_t>;
    std::array<Variable, 3> coordinates;
    Variable density;
    std::array<Variable, 3> momentum;
    Variable energy;
    Variable gamma;
    bool isPlane = false; // 2-D: there is no third coordinate, and no momentum along it
};

FlowVariables_s flowVariablesOf(const plot3d::DataSet& data);

/// Those of auxiliary data of the zone, and of the data set where the zone has none.
std::optional<double> freeStreamMach(const plot3d::DataSet& data, std::size_t zone);
/// Overflow's GAMINF; the zone's alone.
std::optional<double> freeStreamGamma(const plot3d::DataSet& data, std::size_t zone);

/// What the zone lacks, one sentence; empty if it has all.
std::string whatIsMissing(const plot3d::DataSet& data, std::size_t zone, const FlowNeeds_s& needs);

} // namespace plot3dlib
