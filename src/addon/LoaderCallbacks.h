// The functions that the host calls: the doors into a load, and the state-change notice. When
// memory runs out, std::bad_alloc passes on to the host, with everything given back.
#pragma once

#include <cstdint>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// A finished list of instructions (borrowed), from a macro or a layout. Nothing is asked of the
/// user. False (told): the parse or the load failed, as for loadFromInstructions.
[[nodiscard]] bool loaderCallback(QuorStringListHandle instructions);

/// The files (borrowed) of the host's import file selection: composes instructions and loads at
/// once, or, with `advancedOptions`, shows the load dialog, which has its own control for `append`.
void loaderSelectedCallback(QuorStringListHandle files, bool advancedOptions, bool append);

/// Reacts to the host's code 15 and to no other: drops the dialog's files.
void stateChangeCallback(std::int32_t code);

/// Parses the instructions into a record of its own and loads. False (told): the parse or the load
/// failed. False (not told): a silent refusal of parseLoadInstructions, or an interruption.
[[nodiscard]] bool loadFromInstructions(QuorStringListHandle instructions, bool fromSelection);

} // namespace quorvia::quorutildataio
