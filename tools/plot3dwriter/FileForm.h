// How the numbers of a PLOT3D file stand on disk: encoding, byte order, width of reals, framing.
// What the numbers are is told by FileDescription.h; any description can be written in any form.
#pragma once

#include <cstdint>

namespace quorvia::plot3dwriter {

enum class Encoding_e {
    Text,   ///< tokens and line ends
    Binary, ///< numbers back to back
    Fortran ///< unformatted sequential records: length marker, payload, the same marker again
};

enum class ByteOrder_e { Little, Big };

/// Width of a real. Integers are 32 bits wide in either precision.
enum class Precision_e { Single, Double };

/// The longest payload that Fortran compilers put behind one 4-byte marker.
inline constexpr std::int64_t longestFortranSegment = 2147483639;

/// What follows the last grid of an Overflow solution in plain binary; see
/// FileForm_s::overflowTail.
enum class OverflowTail_e { AcceptedPadding, Nothing };

/// How a text file looks. All of these are free in the format; the line rules that are not free
/// (a count of grids alone on its line, a grid's dimensions on one line, a line end after the
/// header and after each grid's scalars) are always kept.
struct TextOptions_s {
    /// In blocks of values; a repeat token counts once. Readers that find a file's structure by
    /// trial tell a solution by a line that ends after its scalars, 4 or 5 of them. So a function
    /// file whose lines end after 4 or 5 values may be taken for a solution with one direction
    /// more.
    std::int32_t tokensPerLine = 6;
    std::int32_t significantDigits = 0; ///< 0: the fewest digits that read back as the same value
    bool repeatCounts = false;          ///< equal neighbours in a block become one token, 24*1
    bool commas = false;                ///< tokens are separated by a comma and a blank
    bool fortranExponents = false;      ///< every real has an exponent, D for its letter: 1.5D+02
    bool carriageReturns = false;       ///< lines end in CR LF, not LF
};

struct FileForm_s {
    Encoding_e encoding = Encoding_e::Binary;
    ByteOrder_e byteOrder = ByteOrder_e::Little; ///< not for text
    Precision_e precision =
        Precision_e::Single; ///< in text: the precision that the digits suffice for

    std::int32_t markerBytes = 4; ///< Fortran only: 4 or 8

    /// Fortran with 4-byte markers only: a longer payload is split into segments of this many
    /// bytes, each with markers of its own. The leading marker is negative unless the segment is
    /// the last, the trailing one unless it is the first. Readers usually know continued segments
    /// by the length longestFortranSegment alone, so any other value is for tests of the writer.
    std::int64_t maxSegmentBytes = longestFortranSegment;

    /// Overflow in plain binary only. A reader accepts such a file if the bytes behind the header
    /// are those of all variables, plus the scalars of each grid, the integer among them counted at
    /// the width of a real, plus 8 more bytes once for the file (16 in double precision). The data
    /// themselves are shorter: in single precision by those 8 bytes, in double precision by 16
    /// and, since the integer takes 4 bytes of the 8 counted, by 4 more for each grid. No item of
    /// the format fills that gap, so zero bytes behind the last grid do: 8, or 16 + 4 x grids.
    /// `Nothing` leaves them out, and a reader that accounts for every byte refuses the file.
    OverflowTail_e overflowTail = OverflowTail_e::AcceptedPadding;

    TextOptions_s text; ///< text only
};

} // namespace quorvia::plot3dwriter
