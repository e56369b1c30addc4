#include <gtest/gtest.h>

#include "open/FileForm.h"

namespace plot3dlib {
namespace {

using plot3d::Piece;

/// Segments of 100 bytes of payload between markers of 4 bytes, from byte 4 on.
FileForm_s segmented() {
    FileForm_s form;
    form.segmentEnds = {104, 212, 320};
    return form;
}

TEST(Pieces, OfAFileWithoutSegmentsAreOne) {
    EXPECT_EQ(piecesOf(FileForm_s(), 10, 1000), (std::vector<Piece>{{10, 1000}}));
}

TEST(Pieces, AreCutByEveryBoundary) {
    EXPECT_EQ(piecesOf(segmented(), 54, 200),
              (std::vector<Piece>{{54, 50}, {112, 100}, {220, 50}}));
}

TEST(Pieces, BeginBehindTheMarkersWhereASegmentEnds) {
    EXPECT_EQ(piecesOf(segmented(), 104, 20), (std::vector<Piece>{{112, 20}}));
}

TEST(Pieces, EndAtTheEndOfASegment) {
    EXPECT_EQ(piecesOf(segmented(), 84, 20), (std::vector<Piece>{{84, 20}}));
    EXPECT_EQ(piecesOf(segmented(), 84, 120), (std::vector<Piece>{{84, 20}, {112, 100}}));
}

TEST(Pieces, GoRoundMarkersOfEightBytes) {
    FileForm_s form = segmented();
    form.markerBytes = 8;
    EXPECT_EQ(piecesOf(form, 100, 10), (std::vector<Piece>{{100, 4}, {120, 6}}));
}

TEST(Pieces, OfNothingAreNone) {
    EXPECT_TRUE(piecesOf(segmented(), 50, 0).empty());
}

TEST(PositionBehind, SkipsTheMarkersThatStandThere) {
    EXPECT_EQ(positionBehind(segmented(), 4, 60), 64);
    EXPECT_EQ(positionBehind(segmented(), 4, 100), 112);
    EXPECT_EQ(positionBehind(segmented(), 4, 250), 270);
}

} // namespace
} // namespace plot3dlib
