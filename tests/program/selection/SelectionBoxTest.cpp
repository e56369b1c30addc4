#include <iterator>
#include <sstream>

#include <gtest/gtest.h>

#include "console/options/OptionParser.h"
#include "selection/Selection.h"

namespace plot3d::program {
namespace {

Zone zoneOf(std::int64_t i, std::int64_t j, std::int64_t k) {
    Zone zone;
    zone.size = {i, j, k};
    return zone;
}

/// What is wrong with the words of the command line; empty if nothing is.
std::string problemOf(const std::string& arguments, SelectionArguments& selection) {
    console::OptionParser parser;
    console::OptionTable table = parser.table();
    selection.declare(table);
    std::istringstream in(arguments);
    return parser.parse({std::istream_iterator<std::string>(in), {}});
}

std::string problemOf(const std::string& arguments) {
    SelectionArguments selection;
    return problemOf(arguments, selection);
}

std::optional<Box> boxOf(const std::string& arguments, const Zone& zone) {
    SelectionArguments selection;
    EXPECT_EQ(problemOf(arguments, selection), "");
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
    EXPECT_EQ(problemOf("--i 0"),
              "--i: \"0\" holds no index: they count from 1, or from the end with -1 for the last");
    EXPECT_EQ(problemOf("--point 1,2,3,4"),
              "--point: \"1,2,3,4\" has more than the three indices of a point");
    EXPECT_EQ(problemOf("--point 1 --k 1"), "--k excludes --point");
}

} // namespace
} // namespace plot3d::program
