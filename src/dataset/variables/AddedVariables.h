// Variables that a load adds to the zones of a data set that is there. No values stand behind them
// until files are set up. docs/append-and-replace.md tells when variables are added.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// Adds the variables behind `varCount` up to `wantedVarCount`, under their `names` (by number from
/// 1), and raises `varCount`; the new numbers go into `varsAdded`. `arguments` is borrowed and
/// emptied. False (not told): not all could be added; `varCount` is as it was then. Without memory
/// for the set nothing is added, which is no failure.
[[nodiscard]] bool addMissingVariables(const Plot3DLoadOptions_s& options,
                                       const Plot3DFileHandler& firstHandler,
                                       QuorStringListHandle names, QuorArgListHandle arguments,
                                       std::int32_t wantedVarCount, std::int32_t& varCount,
                                       HostSet& varsAdded);

/// Adds the variables of the first handler's function files, named by ordinals that are free in the
/// data set, and counts them in `varCount`; their numbers go into `varsAdded`, which is made if it
/// is null. False (not told): not all could be added.
[[nodiscard]] bool addFunctionVariables(HostSet& varsAdded, std::int32_t zoneCount,
                                        std::int32_t& varCount,
                                        const std::vector<Plot3DFileHandler>& handlers);

} // namespace quorvia::quorutildataio
