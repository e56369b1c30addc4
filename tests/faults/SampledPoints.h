// Which points of a kind of fault a run of the tests tries: samples that follow from a printed
// seed, all, or one. PLOT3D_TEST_SEED=N repeats a run, PLOT3D_FAULTS=all takes every point,
// PLOT3D_FAULT=name/n takes one.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>

#include "faults/Session.h"

namespace quorvia::testsupport {

/// False if one point was asked for, and it is not one of `name`.
bool isWanted(const std::string& name);

/// Out of 1 to what `count` gives; the one that was asked for may lie behind them.
std::set<std::int64_t> pointsToTry(const std::function<std::int64_t()>& count,
                                   const std::string& name);

/// The sessions of the program; their files are written at the first call.
const Sessions& sessions();

} // namespace quorvia::testsupport
