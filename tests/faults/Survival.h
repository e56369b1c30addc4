// Judges what a step has left: how it differs from what it should be, and whether a load that was
// refused has left what loads of its kind may leave.
#pragma once

#include <string>

#include "faults/SessionPlay.h"

namespace quorvia::testsupport {

/// The first lines that differ, for people.
std::string difference(const Standing_s& expected, const Standing_s& found);

/// Whether nothing but what a side file brings is missing: boundary zones and their values, or the
/// names of variables. A load goes on without such a file, and says so.
bool isWithoutSideFile(const Session_s& session, const Standing_s& found,
                       const Standing_s& expected);

/// Whether nothing but auxiliary data and some of the instructions is missing: a load goes on where
/// the host does not take an item.
bool isWithoutWhatHostRefused(const Standing_s& found, const Standing_s& expected);

/// What a refused step has lost or changed that it may not; empty if nothing. `expected` is what it
/// would have made.
std::string lostByRefusal(Survival_e survival, const Standing_s& before, const Standing_s& expected,
                          const Standing_s& now);

} // namespace quorvia::testsupport
