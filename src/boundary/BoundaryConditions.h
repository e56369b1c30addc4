// What a boundary's name stands for. docs/boundary-files.md holds the table.
#pragma once

#include <cstdint>

namespace quorvia::quorutildataio {

constexpr std::int64_t boundaryConditionSize = 80; // characters, the closing zero among them

/// Stores the condition that a boundary's name stands for in `condition`, which has room for
/// boundaryConditionSize characters. A name that says nothing is taken for a wall.
void classifyBoundary(const char* name, char* condition);

} // namespace quorvia::quorutildataio
