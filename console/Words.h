// Counts, sizes and times in words.
#pragma once

#include <string>

#include "console/counts/Counts.h"

namespace console {

/// At most seven digits, and no "-0".
std::string roughNumber(double value);

/// "812 bytes", "9.1 kB", "2.3 GB": powers of 1,000, two or three digits.
std::string roughBytes(double byteCount);

/// "5 s", "3 min 20 s", "2 h 5 min".
std::string roughSeconds(double seconds);

} // namespace console
