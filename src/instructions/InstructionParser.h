// Load instructions, a flat list of keys each followed by its values, into the options of a load.
// docs/instructions.md holds the table of keys.
#pragma once

#include "instructions/Plot3DLoadOptions.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets the defaults and reads `instructions` (borrowed) into `options`. True: the options may go
/// to the load. False (told): the list is wrong. False (not told): a word that stands for nothing,
/// an empty name, a count that is no number, no memory. The record holds what had been read, and
/// the caller releases it.
[[nodiscard]] bool parseLoadInstructions(QuorStringListHandle instructions,
                                         Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
