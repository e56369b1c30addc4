// The auxiliary data of a data set that tell the host which variable is density, momentum, energy.
#pragma once

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets an item for each name in `variableNames` (borrowed) that has a meaning, and the two fixed
/// items. False (not told): a name is missing or the host refused an item.
[[nodiscard]] bool setCommonAuxData(QuorStringListHandle variableNames);

} // namespace quorvia::quorutildataio
