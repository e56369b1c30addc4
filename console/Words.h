// Counts, sizes and times in words.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace console {

/// "940,528".
std::string grouped(std::int64_t number);

/// "1 zone", "3 zones", "1,000 zones".
std::string counted(std::int64_t count, std::string_view one, std::string_view many);

/// "812 bytes", "9.1 kB", "2.3 GB": powers of 1,000, two or three digits.
std::string roughBytes(double byteCount);

/// "5 s", "3 min 20 s", "2 h 5 min".
std::string roughSeconds(double seconds);

} // namespace console
