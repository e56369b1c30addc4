#include "open/FileForm.h"

#include <algorithm>

namespace plot3dlib {

namespace {

/// Goes over payload from `position` on: `visit` gets each run between markers. Gives the position
/// behind the last.
template <typename Visit>
std::int64_t walkPayload(const FileForm_s& form, std::int64_t position, std::int64_t byteCount,
                         Visit visit) {
    auto end = std::lower_bound(form.segmentEnds.begin(), form.segmentEnds.end(), position);
    while (byteCount > 0) {
        if (end == form.segmentEnds.end() || *end - position >= byteCount) {
            visit(plot3d::Piece{position, byteCount});
            return position + byteCount;
        }
        if (*end > position)
            visit(plot3d::Piece{position, *end - position});
        byteCount -= *end - position;
        position = *end++ + 2 * form.markerBytes;
    }
    return position;
}

} // namespace

std::vector<plot3d::Piece> piecesOf(const FileForm_s& form, std::int64_t offset,
                                    std::int64_t byteCount) {
    std::vector<plot3d::Piece> pieces;
    walkPayload(form, offset, byteCount,
                [&](const plot3d::Piece& piece) { pieces.push_back(piece); });
    return pieces;
}

std::int64_t positionBehind(const FileForm_s& form, std::int64_t offset, std::int64_t byteCount) {
    const std::int64_t end =
        walkPayload(form, offset, byteCount, [](const plot3d::Piece& /*piece*/) {});
    const bool isAtMarkers =
        std::binary_search(form.segmentEnds.begin(), form.segmentEnds.end(), end);
    return isAtMarkers ? end + 2 * form.markerBytes : end;
}

} // namespace plot3dlib
