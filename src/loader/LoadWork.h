// How heavy the dataset stage of a load is, for the progress bar.
#pragma once

#include <cstdint>

#include "loader/LoadContext.h"

namespace quorvia::quorutildataio {

/// The weight of the dataset stage on the progress bar: variables times zones, or times K planes.
std::int64_t estimateLoadWork(const Plot3DLoadContext_s& context);

} // namespace quorvia::quorutildataio
