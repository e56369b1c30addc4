// Which variables a load has: how many of each kind, and so where they stand. The driver fills it,
// the stages borrow it.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

/// Counts of variables, in the order of their numbers: spatial, IBlank, solution, function. The
/// first time step stands for the load.
struct Plot3DLoadShape_s {
    std::int32_t numSpatialVars = 0; // 0 with neither grid nor solution file
    bool hasIBlank = false;          // also where the grid was there before the load
    std::int32_t numSolutionVars = 0;
    std::int32_t numFunctionVars = 0;  // of the first function file alone
    std::int32_t existingVarCount = 0; // variables of the data set; raised as the load adds some

    /// Variables ahead of the solution's: the spatial ones and IBlank.
    std::int32_t gridVarCount() const { return numSpatialVars + (hasIBlank ? 1 : 0); }
    /// Those and the solution's; 64-bit, since headers may claim any numbers.
    std::int64_t gridAndSolutionVarCount() const {
        return std::int64_t{gridVarCount()} + numSolutionVars;
    }
};

} // namespace quorvia::quorutildataio
