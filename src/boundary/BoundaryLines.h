// The lines of a boundary file and the tokens on them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "plot3dfile/bytes/FileStream.h"

namespace quorvia::quorutildataio {

/// Reads the next line, its line end included, or the next 255 characters of a longer one. False
/// (not told): end of file or a read error; `line` is as it was. What stands behind a zero byte is
/// dropped.
[[nodiscard]] bool readBoundaryTextLine(FileStream& stream, std::string& line);

/// Takes the next token off the front of `rest`; empty if there is none. Blanks, tabs, carriage
/// returns and line feeds stand between tokens.
std::string takeToken(std::string_view& rest);

/// The decimal integer at the start of a token, whatever follows it. Empty (not told): the token
/// starts with none, or it passes 32 bits.
[[nodiscard]] std::optional<std::int32_t> leadingInteger(std::string_view token);

} // namespace quorvia::quorutildataio
