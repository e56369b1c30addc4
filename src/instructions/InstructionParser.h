// Load instructions, a flat list of keys each followed by its values, into the options of a load.
// docs/instructions.md holds the table of keys.
#pragma once

#include "instructions/Plot3DLoadOptions.h"
#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets the defaults and reads `instructions` (borrowed) into `options`. True: the options may go
/// to the load. False: what was wrong has been shown, save for the silent refusals that the table
/// of keys names; the record holds what had been read, and the caller releases it.
bool parseLoadInstructions(QuorStringListHandle instructions, Plot3DLoadOptions_s& options);

} // namespace quorvia::quorutildataio
