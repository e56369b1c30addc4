// Where the values of one variable of one zone are: in pieces of a file, in memory, or in the field
// of another zone.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <plot3d/Box.h>

namespace plot3d {

enum class ValueType : std::uint8_t { Float32, Float64, Int32 };

/// Bytes of one value.
constexpr std::int64_t width(ValueType type) {
    return type == ValueType::Float64 ? 8 : 4;
}

enum class ByteOrder : std::uint8_t { Little, Big };

/// Bytes of a file, from its start.
struct Piece {
    std::int64_t offset = 0;
    std::int64_t byteCount = 0;

    bool operator==(const Piece&) const = default;
};

/// A field that lies in a file as it is: its values are the bytes of the pieces, one after the
/// other, I fastest, then J, then K. A value may be cut by the end of a piece, since the segments
/// of a Fortran record end anywhere.
struct Source {
    std::string file; // as it was opened; absolute if it was given so
    ValueType type = ValueType::Float32;
    ByteOrder order = ByteOrder::Little;
    std::vector<Piece> pieces;
};

/// A field that is some of the points of another one.
struct PartOf {
    std::size_t zone = 0;     // index from 0
    std::size_t variable = 0; // index from 0
    Box box;                  // in that zone
};

enum class FieldKind : std::uint8_t {
    Empty,    // the zone has no values of this variable
    InFile,   // `source` tells where
    InMemory, // read when the data set was opened: text, planes, subsets
    PartOf,   // `partOf` tells of what
    AtHost    // known through a host alone, which some other guest serves
};

} // namespace plot3d
