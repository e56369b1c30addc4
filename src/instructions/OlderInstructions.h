// The entries of instruction lists that only layouts and macros of an earlier generation hold and
// that are more than another name for a key. docs/instructions.md tells them to users.
#pragma once

#include "instructions/InstructionKeys.h"

namespace quorvia::quorutildataio {

// Each takes the values behind its entry, as the `read` of InstructionKey_s.

/// The one grid file, in the place of all before it. False (told): the list has ended. False (not
/// told): the name is empty.
[[nodiscard]] bool readOneGridFile(InstructionParse_s& parse);

/// One more solution file. False (told): the list has ended. False (not told): the name is empty.
[[nodiscard]] bool readOneSolutionFile(InstructionParse_s& parse);

/// A count and that many names of any kind, sorted by the names alone, in the place of all files
/// before them. Empty names are not counted. A count that is no number stands for no names. False
/// (told): the list ends among the names, or they can't be sorted.
[[nodiscard]] bool readDataFiles(InstructionParse_s& parse);

} // namespace quorvia::quorutildataio
