#include <CLI/CLI.hpp>
#include <gtest/gtest.h>

#include "selection/Selection.h"

namespace plot3d::program {
namespace {

Zone zoneOf(std::int64_t i, std::int64_t j, std::int64_t k) {
    Zone zone;
    zone.size = {i, j, k};
    return zone;
}

std::optional<Box> boxOf(const char* arguments, const Zone& zone) {
    CLI::App app;
    SelectionArguments selection;
    selection.declare(app);
    app.parse(arguments);
    return selection.box(zone);
}

TEST(SelectionBox, IsTheWholeZoneUnlessAskedOtherwise) {
    EXPECT_EQ(boxOf("", zoneOf(7, 5, 3)), Box::whole({7, 5, 3}));
}

TEST(SelectionBox, HoldsTheRangesOfEachDirection) {
    EXPECT_EQ(boxOf("--i 2,6,2 --j -1 --k 2,", zoneOf(7, 5, 3)),
              (Box{{1, 5, 2}, {4, 4, 1}, {1, 2, 1}}));
}

TEST(SelectionBox, HoldsOnePoint) {
    EXPECT_EQ(boxOf("--point 7,-2,3", zoneOf(7, 5, 3)), (Box{{6, 6, 1}, {3, 3, 1}, {2, 2, 1}}));
}

TEST(SelectionBox, IsMissingInAZoneWithoutThePoints) {
    EXPECT_FALSE(boxOf("--point 8", zoneOf(7, 5, 3)));
    EXPECT_FALSE(boxOf("--k 4,9", zoneOf(7, 5, 3)));
}

TEST(Selection, RefusesWhatItCannotUnderstandWhileTheCommandLineIsRead) {
    EXPECT_THROW(boxOf("--i 0", Zone()), CLI::ValidationError);
    EXPECT_THROW(boxOf("--point 1,2,3,4", Zone()), CLI::ValidationError);
    EXPECT_THROW(boxOf("--point 1 --k 1", Zone()), CLI::ExcludesError);
}

} // namespace
} // namespace plot3d::program
