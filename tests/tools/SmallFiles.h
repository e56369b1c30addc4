// Small PLOT3D files for the tests of the writer: descriptions, and bytes spelled by hand.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "plot3dwriter/Plot3DWriter.h"

namespace quorvia::plot3dwriter::tests {

/// The value names its place, and is exact in 32 bits as long as no direction has over ten points.
inline double placeValue(std::int32_t grid, std::int32_t variable, std::int32_t i, std::int32_t j,
                         std::int32_t k) {
    return i + 10 * j + 100 * k + 1000 * variable + 10000 * grid;
}

inline FileDescription_s describe(FileKind_e kind, Layout_e layout, std::vector<GridDims_s> grids) {
    FileDescription_s description;
    description.kind = kind;
    description.layout = layout;
    description.isMultiGrid = grids.size() > 1;
    description.grids = std::move(grids);
    description.value = placeValue;
    description.iblank = [](std::int32_t grid, std::int32_t i, std::int32_t j, std::int32_t k) {
        return 1 + i + 2 * j + 3 * k + 16 * grid;
    };
    description.corner = [](std::int32_t, std::int64_t element, std::int32_t corner) {
        return static_cast<std::int32_t>(element) + corner + 1;
    };
    return description;
}

inline FileForm_s form(Encoding_e encoding, Precision_e precision = Precision_e::Single,
                       ByteOrder_e byteOrder = ByteOrder_e::Little) {
    FileForm_s result;
    result.encoding = encoding;
    result.precision = precision;
    result.byteOrder = byteOrder;
    return result;
}

/// Throws with the writer's problem, which then fails the test that asked for the bytes.
inline std::string written(const FileDescription_s& description, const FileForm_s& fileForm) {
    std::string bytes;
    const WriteOutcome_s outcome = writePlot3DBytes(bytes, description, fileForm);
    if (!outcome.problem.empty())
        throw std::runtime_error(outcome.problem);
    return bytes;
}

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

} // namespace quorvia::plot3dwriter::tests
