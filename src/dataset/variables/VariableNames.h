// The names of all variables of a load, in the order of their numbers: spatial, IBlank, solution,
// function files one after the other. docs/variables.md holds the names of every style.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "dataset/variables/LoadShape.h"
#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets the names in `names` (host string list, by index from 1) and gives the last index set.
/// Throws std::bad_alloc if the host could not take a name, or does not tell those that are taken.
std::int32_t buildVariableNames(const Plot3DLoadShape_s& shape, const Plot3DLoadOptions_s& options,
                                const Plot3DFileHandler& firstHandler, QuorStringListHandle names);

/// The same for a shape given by its counts; the handlers beside the first are not looked at.
inline std::int32_t buildVariableNames(bool hasIBlank, std::int32_t numSpatialVars,
                                       std::int32_t numSolutionVars, std::int32_t numFunctionVars,
                                       const Plot3DLoadOptions_s& options,
                                       const Plot3DFileHandler& firstHandler,
                                       QuorStringListHandle names,
                                       const std::vector<Plot3DFileHandler>&) {
    const Plot3DLoadShape_s shape{.numSpatialVars = numSpatialVars,
                                  .hasIBlank = hasIBlank,
                                  .numSolutionVars = numSolutionVars,
                                  .numFunctionVars = numFunctionVars};
    return buildVariableNames(shape, options, firstHandler, names);
}

/// How many names buildVariableNames would set, without asking the host anything.
std::int64_t countVariableNames(const Plot3DLoadShape_s& shape,
                                const Plot3DFileHandler& firstHandler);

/// "F<ordinal>V<k>": variable `k`, from 1, of a function file.
std::string functionName(std::int64_t ordinal, std::int64_t k);

/// Raises `ordinal` until no "F<ordinal>V<k>" is the name of a variable in the frame's data set.
/// False (not told): a host query failed or memory ran out.
[[nodiscard]] bool findFreeFunctionOrdinal(std::int32_t& ordinal);

/// The host's type code of a variable of the load, `varIndex` from 0.
std::int32_t fieldDataType(const Plot3DFileHandler& handler, std::int32_t varIndex,
                           const Plot3DLoadShape_s& shape);

} // namespace quorvia::quorutildataio
