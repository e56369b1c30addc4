// Strand options, solution times from file names, and time steps that turn out to have one time.
#pragma once

#include <cstdint>
#include <vector>

#include "instructions/Plot3DLoadOptions.h"
#include "plot3dfile/timestep/Plot3DFileHandler.h"

namespace quorvia::quorutildataio {

/// Clears the strand options that this load cannot keep.
void normaliseStrandOptions(Plot3DLoadOptions_s& options);

/// Replaces `solutionTimes` by the times that the host finds in the names of the solution, or else
/// function files; by nothing if it does not find all. Throws std::bad_alloc if the host gives no
/// memory.
void extractSolutionTimes(Plot3DLoadOptions_s& options);

/// Tells times apart that are the same. False (not told): they are and stay so, which the user is
/// asked about. False (told): no memory. `firstZone` counts from 1.
[[nodiscard]] bool checkSolutionTimes(std::int32_t firstZone, Plot3DLoadOptions_s& options,
                                      std::vector<Plot3DFileHandler>& fileSets);

/// Gives the zones of the load the times of their solution files' names. False (not told): a name
/// has no time.
[[nodiscard]] bool assignSolutionTimes(std::int32_t firstZone, const Plot3DLoadOptions_s& options,
                                       std::vector<Plot3DFileHandler>& fileSets);

} // namespace quorvia::quorutildataio
