// Which points of a kind of fault a run of the tests tries: samples that follow from a printed
// seed, all, or one. PLOT3D_TEST_SEED=N repeats a run, PLOT3D_FAULTS=all takes every point,
// PLOT3D_FAULT=name/n takes one.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "faults/ChildProcess.h"
#include "faults/Session.h"

namespace quorvia::testsupport {

/// False if one point was asked for, and it is not one of `name`.
bool isWanted(const std::string& name);

/// Plays the points to try. `play(n)` lets the n-th point, from 1, fail in a child; one that is
/// never reached makes a run without a fault, whose count is that of all points. Each problem fails
/// the test, with the words that repeat it.
void expectWellAtEachPoint(const std::string& name,
                           const std::function<ChildResult_s(std::int64_t n)>& play);

/// The sessions of the program; their files are written at the first call.
const Sessions& sessions();

} // namespace quorvia::testsupport
