// The pieces of a field as other programs can read them: not too long each, and not too many.
#pragma once

#include <cstdint>
#include <vector>

#include <plot3d/Field.h>

namespace plot3d::program {

/// HDF5 up to 1.10.8 reads what is longer than 2 GiB as zeros, without a word.
inline constexpr std::int64_t longestSlot = std::int64_t{1} << 30;
/// More don't fit into the header that tells of them.
inline constexpr std::size_t mostSlots = 2700;

/// The bytes of the pieces in their order, in slots of at most `longest` bytes.
std::vector<Piece> slotsOf(const std::vector<Piece>& pieces, std::int64_t longest = longestSlot);

} // namespace plot3d::program
