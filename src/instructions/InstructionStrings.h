// The strings of an instruction list, taken one after the other, and their values.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "quorvia/HostHandles.h"

namespace quorvia::quorutildataio {

/// Gives back `current`, moves `index` (from 1; 0 before the first string) to the next string and
/// fetches it. False (told): the list has ended where a value was due, with `reportMissing`; the
/// message names the string before. False (not told): it has ended, without. Throws std::bad_alloc
/// if the host has no memory for the string.
[[nodiscard]] bool nextInstructionString(HostString& current, QuorStringListHandle instructions,
                                         std::int64_t& index, bool reportMissing);

/// Takes the next string as a boolean, which is never an error. False (told): there is none;
/// `field` is as it was.
[[nodiscard]] bool readBooleanInstruction(bool& field, HostString& current,
                                          QuorStringListHandle instructions, std::int64_t& index);

/// Shows that a value for `word` is missing.
void showMissingOption(const std::string& word);

/// Whether the text is one of the words for true; anything else means false.
bool isTrueString(const char* text);

/// Reads a decimal integer behind leading white space; what follows it is not looked at. False (not
/// told): the text starts with no number, or with one too large for 32 bits.
[[nodiscard]] bool parseCount(const std::string& text, std::int32_t& count);

/// The name without blanks, tabs, carriage returns and line feeds at its ends.
std::string trimFileName(std::string_view text);

} // namespace quorvia::quorutildataio
