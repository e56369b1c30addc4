// How a file stores its numbers: what a read of values needs to know beside their position. Of
// every encoding, though most of it tells of Fortran records. docs/format.md tells the forms.
#pragma once

#include <cstdint>
#include <vector>

namespace quorvia::quorutildataio {

enum Plot3DEncoding_e : std::int32_t {
    Plot3DEncoding_Binary = 0,             // numbers back to back
    Plot3DEncoding_FortranUnformatted = 1, // records between length markers
    Plot3DEncoding_Ascii = 2,              // text tokens
    Plot3DEncoding_Unknown = 255
};

struct Plot3DRecordForm_s {
    Plot3DEncoding_e encoding = Plot3DEncoding_Unknown;
    bool byteSwap = false;          // numbers are in the opposite order to the machine's
    bool isDoublePrecision = false; // reals are 64 bits wide, otherwise 32
    std::uint32_t markerSize = 4;   // bytes of a Fortran record marker, 4 or 8
    // Positions, ascending, of each payload end inside a segmented record: a trailing marker and
    // the next leading marker stand there.
    std::vector<std::int64_t> segmentBoundaries;
};

/// Bytes of an integer of a binary or Fortran file, whatever its precision.
constexpr std::int64_t integerWidth = 4;

/// Bytes of a real of such a file.
constexpr std::int64_t realWidth(const Plot3DRecordForm_s& form) {
    return form.isDoublePrecision ? 8 : 4;
}

} // namespace quorvia::quorutildataio
