// The options of a load as the list of instructions that repeats it, in the standard syntax.
#pragma once

#include "instructions/Plot3DLoadOptions.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// The instructions, keys in a fixed order. Null (told): the host had no memory for the list. Null
/// (not told): it had none for a file name.
[[nodiscard]] HostStringList writeLoadInstructions(const Plot3DLoadOptions_s& options);

/// "start,end,skip", with an empty field for a `start` or `end` of 0. The text lies in one static
/// buffer and is valid until the next call.
const char* formatIndexRange(const Plot3DIndexRange_s& range);

/// Appends FILEGRIDSET and the set's text, such as 1-3,7; nothing for a null set.
void appendGridSetInstruction(QuorStringListHandle list, QuorSetHandle set);

} // namespace quorvia::quorutildataio
