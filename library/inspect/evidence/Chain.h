// Grids that stand one behind the other, each with a header of its own.
#pragma once

#include <cstdint>
#include <optional>

#include "inspect/evidence/Evidence.h"

namespace plot3dlib {

struct Chain_s {
    std::int64_t grids = 0;
    std::int64_t firstAt = 0;  // position of the first grid's header
    std::int64_t secondAt = 0; // and of the second one's
};

/// Whether the whole file is such a chain of two grids or more. `hasCount`: behind a count of them.
std::optional<Chain_s> findChain(Evidence_s& evidence, bool hasCount);

} // namespace plot3dlib
