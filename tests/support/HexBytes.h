// Bytes spelled by hand, as pairs of hexadecimal digits.
#pragma once

#include <string>
#include <string_view>

namespace quorvia::testsupport {

/// "04000000 0000803F" with blanks anywhere becomes eight bytes.
inline std::string fromHex(std::string_view hex) {
    std::string digits;
    for (const char character : hex) {
        if (character != ' ' && character != '\n')
            digits += character;
    }
    std::string bytes;
    for (std::size_t index = 0; index + 1 < digits.size(); index += 2)
        bytes += static_cast<char>(std::stoi(digits.substr(index, 2), nullptr, 16));
    return bytes;
}

/// The other direction, in groups of four bytes, so that a failed comparison can be read.
inline std::string toHex(std::string_view bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string hex;
    for (std::size_t index = 0; index < bytes.size(); ++index) {
        const auto byte = static_cast<unsigned char>(bytes[index]);
        if (index > 0 && index % 4 == 0)
            hex += ' ';
        hex += digits[byte >> 4U];
        hex += digits[byte & 0xFU];
    }
    return hex;
}

/// Spelled by hand, normalised to the grouping of toHex.
inline std::string hexOf(std::string_view hex) {
    return toHex(fromHex(hex));
}

} // namespace quorvia::testsupport
