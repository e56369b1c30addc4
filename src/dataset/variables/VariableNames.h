// The names of all variables of a load, in the order of their numbers: spatial, IBlank, solution,
// function files one after the other. docs/variables.md holds the names of every style.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets the names in `names` (host string list, by index from 1) and gives the last index set.
/// `numFunctionVars` is the variable count of the first function file of the first file set. Throws
/// std::bad_alloc if the host could not take a name, or does not tell those that are taken.
std::int32_t buildVariableNames(bool hasIBlank, std::int32_t numSpatialVars,
                                std::int32_t numSolutionVars, std::int32_t numFunctionVars,
                                const Plot3DLoadOptions_s& options,
                                const Plot3DFileHandler& firstHandler, QuorStringListHandle names,
                                const std::vector<Plot3DFileHandler>& handlers);

/// How many names buildVariableNames would set, without asking the host anything.
std::int64_t countVariableNames(bool hasIBlank, std::int32_t numSpatialVars,
                                std::int32_t numSolutionVars,
                                const Plot3DFileHandler& firstHandler);

/// Raises `ordinal` until no "F<ordinal>V<k>" is the name of a variable in the frame's data set.
/// False: a host query failed or memory ran out.
bool findFreeFunctionOrdinal(std::int32_t& ordinal);

/// The host's type code of a variable of the load, `varIndex` from 0.
std::int32_t fieldDataType(const Plot3DFileHandler& handler, std::int32_t varIndex, bool hasIBlank,
                           std::int32_t numSpatialVars);

} // namespace quorvia::quorutildataio
