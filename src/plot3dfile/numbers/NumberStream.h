// The next number of a file, whatever its encoding, so that the layouts are told once for all
// three. docs/format.md states the rules for text tokens (length, repeat counts, exponent letters,
// signs).
#pragma once

#include <cstdint>

#include "plot3dfile/file/Plot3DFile.h"

namespace quorvia::quorutildataio {

/// The next integer, 32 bits. False (not told): none can be read; `value` is 0 then. Text that
/// overflows 32 bits wraps.
[[nodiscard]] bool readInteger(Plot3DFile_s& file, std::int32_t& value);

/// The next real, in binary files of the file's precision, always delivered as 64 bits. False
/// (not told): none can be read; `value` is 0 then. In text a character that begins no number is
/// passed over.
[[nodiscard]] bool readReal(Plot3DFile_s& file, double& value);

/// Passes over `count` reals; those of a repeat token at once, since such a token can promise
/// billions. False (not told): there are not so many.
[[nodiscard]] bool skipReals(Plot3DFile_s& file, std::int32_t count);

/// The bulk form for text: fills `values` with as many of the next `count` reals as can be taken
/// whole from the stream's buffer and are spelled plainly. Gives how many, often fewer, also 0; the
/// stream stands as if readReal had delivered them, and readReal knows what to do about the next.
std::int64_t readPlainReals(Plot3DFile_s& file, std::int64_t count, double* values);

} // namespace quorvia::quorutildataio
