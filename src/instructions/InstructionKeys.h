// The keys of load instructions and how each reads its values. docs/instructions.md tells the same
// table to users.
#pragma once

#include <cstdint>

#include "instructions/Plot3DLoadOptions.h"
#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// One parse: where it stands in the list, and what it has met.
struct InstructionParse_s {
    QuorStringListHandle instructions; // borrowed
    Plot3DLoadOptions_s& options;
    HostString current = {};
    std::int64_t index = 0; // of `current`, from 1
    bool standardSyntax = false;
    bool styleSeen = false;
    bool dataStructureSeen = false;
    bool multiGridSeen = false;
    bool kRangeSeen = false;
};

struct InstructionKey_s {
    const char* word;
    /// Takes the values behind the key. False ends the parse; what was wrong has been shown, unless
    /// it is one of the silent refusals.
    bool (*read)(InstructionParse_s& parse);
};

/// Fetches the value that is due. False: the list has ended (told).
bool fetchInstructionValue(InstructionParse_s& parse);

/// The same for a name; an empty one is refused without a message.
bool fetchInstructionName(InstructionParse_s& parse);

/// Finds a key, whatever its case. Null: `word` (which may be null) is no key.
const InstructionKey_s* findInstructionKey(const char* word);

} // namespace quorvia::quorutildataio
