#include "index/contents/Slots.h"

#include <gtest/gtest.h>

namespace plot3d::program {
namespace {

using Pieces = std::vector<Piece>;

TEST(Slots, ArePiecesThatAreShortEnough) {
    EXPECT_EQ(slotsOf({{4, 10}, {22, 7}}, 10), Pieces({{4, 10}, {22, 7}}));
}

TEST(Slots, CutALongPieceAtItsLimit) {
    EXPECT_EQ(slotsOf({{4, 25}}, 10), Pieces({{4, 10}, {14, 10}, {24, 5}}));
}

TEST(Slots, CutEachPieceForItself) {
    EXPECT_EQ(slotsOf({{4, 12}, {24, 3}}, 10), Pieces({{4, 10}, {14, 2}, {24, 3}}));
}

TEST(Slots, LeaveOutEmptyPieces) {
    EXPECT_EQ(slotsOf({{4, 0}, {8, 3}}), Pieces({{8, 3}}));
}

} // namespace
} // namespace plot3d::program
