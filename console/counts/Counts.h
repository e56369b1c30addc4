// Counts in words. A header alone, so that the library tells numbers as the programs do, and needs
// nothing else of what stands here for programs.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace console {

/// "940,528".
inline std::string grouped(std::int64_t number) {
    const std::string digits = std::to_string(number);
    std::string result;
    for (std::size_t place = 0; place < digits.size(); ++place) {
        const bool isBehindDigit = place > (number < 0 ? 1U : 0U);
        if (isBehindDigit && (digits.size() - place) % 3 == 0)
            result += ',';
        result += digits[place];
    }
    return result;
}
std::string grouped(std::unsigned_integral auto number) {
    return grouped(static_cast<std::int64_t>(number));
}

/// "1 zone", "3 zones", "1,000 zones".
inline std::string counted(std::int64_t count, std::string_view one, std::string_view many) {
    return grouped(count) + ' ' + std::string(count == 1 ? one : many);
}
std::string counted(std::unsigned_integral auto count, std::string_view one,
                    std::string_view many) {
    return counted(static_cast<std::int64_t>(count), one, many);
}

/// "1 byte", "2,340 bytes": the plural is made with an s.
inline std::string counted(std::int64_t count, std::string_view thing) {
    return grouped(count) + ' ' + std::string(thing) + (count == 1 ? "" : "s");
}

} // namespace console
