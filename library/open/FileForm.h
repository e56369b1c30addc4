// How the numbers of one file lie in it: what its fields have in common.
#pragma once

#include <compare>
#include <cstdint>
#include <string>
#include <vector>

#include <plot3d/Field.h>

namespace plot3dlib {

struct FileForm_s {
    std::string file;
    plot3d::ByteOrder order = plot3d::ByteOrder::Little;
    std::int64_t markerBytes = 4; // of one Fortran record marker
    /// Positions, ascending, where the payload of a segment ends; two markers stand between it and
    /// the payload of the next. Empty unless the file has records of several segments.
    std::vector<std::int64_t> segmentEnds;

    auto operator<=>(const FileForm_s&) const = default;
};

/// Where `byteCount` bytes of payload lie that begin at `offset`: around all markers between
/// segments. An offset at the end of a segment stands for the beginning of the next.
std::vector<plot3d::Piece> piecesOf(const FileForm_s& form, std::int64_t offset,
                                    std::int64_t byteCount);

/// The position of the first byte of payload behind them.
std::int64_t positionBehind(const FileForm_s& form, std::int64_t offset, std::int64_t byteCount);

} // namespace plot3dlib
