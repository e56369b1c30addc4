// How each key of load instructions reads its values. Which key stands for which option is told by
// OptionKeys; the entries that only older lists hold stand here.
#pragma once

#include <array>
#include <cstdint>
#include <iterator>

#include "instructions/OptionKeys.h"
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
    std::array<bool, std::size(optionKeys)> keysSeen = {}; // also by their older names
};

struct InstructionKey_s {
    const char* word;
    /// Takes the values behind the key. False ends the parse. False (told): a value is missing or
    /// wrong. False (not told): one of the silent refusals.
    bool (*read)(InstructionParse_s& parse);
};

/// Fetches the value that is due. False (told): the list has ended.
[[nodiscard]] bool fetchInstructionValue(InstructionParse_s& parse);

/// The same for a name. False (told): the list has ended. False (not told): the name is empty.
[[nodiscard]] bool fetchInstructionName(InstructionParse_s& parse);

/// Finds a key, whatever its case. Null (not told): `word` (which may be null) is no key.
[[nodiscard]] const InstructionKey_s* findInstructionKey(const char* word);

} // namespace quorvia::quorutildataio
