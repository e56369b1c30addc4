// The entries of instruction lists that only layouts and macros of an earlier generation hold and
// that are more than another name for a key. docs/instructions.md tells them to users.
#pragma once

#include "instructions/InstructionKeys.h"

namespace quorvia::quorutildataio {

// Each takes the values behind its entry, and fails like the `read` of InstructionKey_s.

/// The one grid file, in the place of all before it.
bool readOneGridFile(InstructionParse_s& parse);

/// One more solution file.
bool readOneSolutionFile(InstructionParse_s& parse);

/// A count and that many names of any kind, sorted by the names alone, in the place of all files
/// before them. Empty names are not counted. A count that is no number stands for no names.
bool readDataFiles(InstructionParse_s& parse);

} // namespace quorvia::quorutildataio
