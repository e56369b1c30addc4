#include "index/contents/Slots.h"

#include <algorithm>

namespace plot3d::program {

std::vector<Piece> slotsOf(const std::vector<Piece>& pieces, std::int64_t longest) {
    std::vector<Piece> slots;
    for (Piece piece : pieces)
        while (piece.byteCount > 0) {
            const std::int64_t count = std::min(piece.byteCount, longest);
            slots.push_back({piece.offset, count});
            piece.offset += count;
            piece.byteCount -= count;
        }
    return slots;
}

} // namespace plot3d::program
