// How the numbers of a PLOT3D file stand on disk, and in which layout.
#pragma once

#include <cstdint>
#include <optional>

#include <plot3d/Field.h>
#include <plot3d/FileInfo.h>

namespace plot3d::program {

/// The longest payload that Fortran compilers put behind one 4-byte marker.
inline constexpr std::int64_t longestSegment = 2147483639;

struct FileForm_s {
    Encoding encoding = Encoding::Binary;
    int markerBytes = 4; // 4 or 8, of Fortran records
    ByteOrder order = ByteOrder::Little;
    ValueType precision = ValueType::Float32; // of reals; in text what the digits suffice for
    Layout layout = Layout::ThreeDWhole;
    bool multiGrid = false;
    std::int64_t segmentBytes = longestSegment; // another value only in tests
};

/// What the user asks for, and what the files are that he has: what he doesn't ask for stays.
struct FormWishes_s {
    std::optional<Encoding> encoding;
    std::optional<int> markerBytes;
    std::optional<ByteOrder> order;
    std::optional<ValueType> precision;
    std::optional<Layout> layout;
    std::optional<bool> multiGrid;
    FileForm_s original; // its precision says nothing: each field tells its own
};

} // namespace plot3d::program
