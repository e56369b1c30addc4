// A name file: plain text, one variable name to a line, a comment behind a semicolon.
#pragma once

#include <cstdint>
#include <string>

#include "quorvia/QuorUtil.h"

namespace quorvia::quorutildataio {

/// Sets at most `count` names from the top of the file, from index `firstIndex` (from 1) on. A file
/// that can't be opened is told to the user and changes nothing; one that can't be read to its end,
/// or for whose lines there is no memory, is told and names what came before. Fewer lines leave the
/// other names as they are. Throws std::bad_alloc if the host could not take a name.
void readNameFile(const std::string& path, QuorStringListHandle names, std::int32_t firstIndex,
                  std::int32_t count);

} // namespace quorvia::quorutildataio
